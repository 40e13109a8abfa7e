# Options of the build and the defaults that every target shares.

if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
    set(wy_top_level ON)
else()
    set(wy_top_level OFF)
endif()

option(WYWIDGETS_BUILD_GALLERY "Build the gallery application" ${wy_top_level})
option(WYWIDGETS_BUILD_DESIGNER "Build the Qt Designer plugin where Qt has what it needs" ${wy_top_level})
option(WYWIDGETS_BUILD_TESTS "Build the tests" ${wy_top_level})
option(WYWIDGETS_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(WYWIDGETS_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(WYWIDGETS_FUZZ "Build the fuzz programs coverage-guided (clang)" OFF)
option(WYWIDGETS_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(WYWIDGETS_COVERAGE "Count which lines and branches of the library run (gcov)" OFF)
option(WYWIDGETS_USE_KEY_MAPPER "Record shortcuts with the key mapper of Qt's private headers, if they are there" ON)
set(WYWIDGETS_QWINDOWKIT "auto" CACHE STRING
    "Window agent to use: auto (installed package if found), system, embedded")
set_property(CACHE WYWIDGETS_QWINDOWKIT PROPERTY STRINGS auto system embedded)
set(WYWIDGETS_TOAST_RESOURCE_DIR "${PROJECT_SOURCE_DIR}/src/common/WyWidgets/wycontrol" CACHE PATH
    "Folder that the toast reads css/ and icons/ from")

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

if(WYWIDGETS_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()
if(WYWIDGETS_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

if(WYWIDGETS_COVERAGE)
    add_link_options(--coverage)
endif()

include(GNUInstallDirs)
set(WYWIDGETS_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/WyWidgets)
