# One function per kind of target. Lists of classes, tests and pages stay explicit and sorted in each folder.

function(wy_set_up_target target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(WYWIDGETS_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE QT_DEPRECATED_WARNINGS
                                                 QT_NO_CAST_TO_ASCII)
endfunction()

# Adds classes of one folder to the library: X.h is public, X.cpp is compiled. Each header is also
# reachable without its folder, as <WyWidgets/X.h>.
function(wy_add_classes folder)
    foreach(class IN LISTS ARGN)
        target_sources(WyWidgets PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${class}.h
                                         ${CMAKE_CURRENT_SOURCE_DIR}/${class}.cpp)
        set(flat ${PROJECT_BINARY_DIR}/include/WyWidgets/${class}.h)
        set(forward "#include <WyWidgets/${folder}/${class}.h>\n")
        file(GENERATE OUTPUT ${flat} CONTENT "#pragma once\n${forward}")
        set_property(TARGET WyWidgets APPEND PROPERTY WY_PUBLIC_HEADERS ${folder}/${class}.h)
    endforeach()
endfunction()

# Adds private sources of one folder (no public header) to the library.
function(wy_add_internal)
    foreach(file IN LISTS ARGN)
        target_sources(WyWidgets PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    endforeach()
endfunction()

# To be called when the target's source list is complete. A header that joins an existing build tree is not among
# the dependencies of the last moc run, so moc would miss it: a changed list makes moc run again.
function(wy_follow_source_list target)
    get_target_property(sources ${target} SOURCES)
    if(NOT "${sources}" STREQUAL "${WY_SOURCES_OF_${target}}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        set(WY_SOURCES_OF_${target} "${sources}" CACHE INTERNAL "Sources that moc has seen")
    endif()
endfunction()

# wy_add_test(NAME [PLATFORMS offscreen desktop screens] [SCALES 1 2 1.5] [SOURCES …] [LIBRARIES …])
#
# Builds NAME.cpp as a QtTest executable and registers it once per platform and scale:
#   offscreen  the offscreen platform plugin, for everything that needs no window system (the default)
#   desktop    a virtual X server with a window manager and a compositor, real input events
#   screens    a two-monitor X server with a window manager
# A Qt warning that a test does not announce with QTest::ignoreMessage fails the test.
function(wy_add_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "PLATFORMS;SCALES;SOURCES;LIBRARIES" ${ARGN})
    if(NOT arg_PLATFORMS)
        set(arg_PLATFORMS offscreen)
    endif()
    if(NOT arg_SCALES)
        set(arg_SCALES 1)
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    wy_set_up_target(${name})
    target_link_libraries(${name} PRIVATE WyTestSupport WyWidgets::WyWidgets ${arg_LIBRARIES})
    target_precompile_headers(${name} REUSE_FROM WyTestSupport)
    set(strict ${PROJECT_SOURCE_DIR}/tests/support/strict)
    foreach(platform IN LISTS arg_PLATFORMS)
        foreach(scale IN LISTS arg_SCALES)
            set(test ${name}.${platform})
            if(NOT scale EQUAL 1)
                string(APPEND test .x${scale})
            endif()
            if(platform STREQUAL "offscreen")
                add_test(NAME ${test} COMMAND ${strict} $<TARGET_FILE:${name}>)
            else()
                add_test(NAME ${test}
                         COMMAND ${PROJECT_SOURCE_DIR}/tests/support/with-display ${platform} -- ${strict}
                                 $<TARGET_FILE:${name}>)
                set_tests_properties(${test} PROPERTIES LABELS display)
            endif()
            set(environment ${WY_TEST_ENVIRONMENT} QT_SCALE_FACTOR=${scale})
            if(platform STREQUAL "offscreen")
                list(APPEND environment QT_QPA_PLATFORM=offscreen)
            else()
                list(APPEND environment QT_QPA_PLATFORM=xcb)
            endif()
            set_tests_properties(${test} PROPERTIES
                ENVIRONMENT "${environment}"
                TIMEOUT ${arg_TIMEOUT})
        endforeach()
    endforeach()
endfunction()

# Builds NAME.cpp as a Google Benchmark executable; subjects and floors are paired in benchmarks/targets.json.
function(wy_add_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    wy_set_up_target(${name})
    target_link_libraries(${name} PRIVATE WyBenchmarkSupport WyWidgets::WyWidgets ${arg_LIBRARIES})
    set_property(GLOBAL APPEND PROPERTY WY_BENCHMARKS ${name})
endfunction()
