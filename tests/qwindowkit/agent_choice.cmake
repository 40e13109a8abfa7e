# Configures the project with and without a QWindowKit package and checks which window agent it chooses.
#
#   cmake -D SOURCE=… -D SCRATCH=… -D GENERATOR=… -D COMPILER=… -P agent_choice.cmake

file(REMOVE_RECURSE ${SCRATCH})
set(prefix ${SCRATCH}/prefix)

# The least that makes an installed package of this name.
file(WRITE ${prefix}/include/QWindowKit/QWKWidgets/widgetwindowagent.h "#pragma once\n")
file(WRITE ${prefix}/lib/cmake/QWindowKit/QWindowKitConfig.cmake [[
foreach(component IN LISTS QWindowKit_FIND_COMPONENTS)
    add_library(QWindowKit::${component} INTERFACE IMPORTED)
    set_target_properties(QWindowKit::${component} PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${CMAKE_CURRENT_LIST_DIR}/../../../include/QWindowKit)
    set(QWindowKit_${component}_FOUND TRUE)
endforeach()
]])
file(WRITE ${prefix}/lib/cmake/QWindowKit/QWindowKitConfigVersion.cmake "set(PACKAGE_VERSION 1.5.1)\n")

set(with_package -D CMAKE_PREFIX_PATH=${prefix})
set(without_package -D CMAKE_DISABLE_FIND_PACKAGE_QWindowKit=ON)

# Configures with these arguments and checks that the outcome (0 or 1) and a pattern in the output are as expected.
function(check expected_outcome expected_output)
    set(build ${SCRATCH}/build)
    file(REMOVE_RECURSE ${build})
    execute_process(
        COMMAND ${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE} -B ${build} -D CMAKE_CXX_COMPILER=${COMPILER}
                -D WYWIDGETS_BUILD_TESTS=OFF -D WYWIDGETS_BUILD_GALLERY=OFF ${ARGN}
        RESULT_VARIABLE outcome OUTPUT_VARIABLE output ERROR_VARIABLE output)
    # Messages are wrapped to the width of a terminal.
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    if(NOT outcome EQUAL expected_outcome OR NOT output MATCHES "${expected_output}")
        message(SEND_ERROR "with ${ARGN}: outcome ${outcome}, expected ${expected_outcome}; \"${expected_output}\" "
                           "was expected in\n${output}")
    endif()
endfunction()

# Checks whether the library is compiled with the headers of the package.
function(check_headers expected)
    file(READ ${SCRATCH}/build/compile_commands.json commands)
    string(FIND "${commands}" "${prefix}/" position)
    if(expected STREQUAL "package" AND position EQUAL -1)
        message(SEND_ERROR "the package was chosen, but its headers are not used")
    elseif(expected STREQUAL "embedded" AND NOT position EQUAL -1)
        message(SEND_ERROR "the package's headers are used, though the embedded agent was chosen")
    endif()
endfunction()

check(0 "window agent system \\(installed package 1.5.1 found\\)" ${with_package})
check_headers(package)
check(0 "window agent system \\(installed package 1.5.1 found\\)" ${with_package} -D WYWIDGETS_QWINDOWKIT=system)
check_headers(package)
check(0 "window agent embedded \\(chosen by WYWIDGETS_QWINDOWKIT\\)" ${with_package}
      -D WYWIDGETS_QWINDOWKIT=embedded)
check_headers(embedded)
check(0 "window agent embedded \\(no installed package found\\)" ${without_package})
check_headers(embedded)
check(1 "WYWIDGETS_QWINDOWKIT is \"system\", but no QWindowKit package" ${without_package}
      -D WYWIDGETS_QWINDOWKIT=system)
check(1 "it may be \"auto\", \"system\" or \"embedded\"" -D WYWIDGETS_QWINDOWKIT=installed)
