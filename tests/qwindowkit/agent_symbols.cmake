# Checks that the library holds the embedded window agent and exports none of it: a host may link the package of
# the same name.
#
#   cmake -D NM=… -D LIBRARY=… -P agent_symbols.cmake

function(read_symbols result)
    execute_process(COMMAND ${NM} -C ${ARGN} ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${symbols}" PARENT_SCOPE)
endfunction()

read_symbols(all)
read_symbols(dynamic -D)
if(NOT all MATCHES "QWK::WidgetWindowAgent::setup")
    message(FATAL_ERROR "the library has no embedded window agent")
endif()
if(NOT dynamic MATCHES "WyWidgets::WyMainWindow")
    message(FATAL_ERROR "the library exports nothing")
endif()
string(REGEX MATCHALL "[^\n]*(QWK::|WyWidgets::WindowDrag)[^\n]*" exported "${dynamic}")
if(exported)
    list(JOIN exported "\n" exported)
    message(FATAL_ERROR "exported, though private:\n${exported}")
endif()
