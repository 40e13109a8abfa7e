# Printed at the end of every configure run.
message(STATUS "WyWidgets ${PROJECT_VERSION}")
message(STATUS "  Qt              ${Qt5_VERSION}")
message(STATUS "  window agent    ${WYWIDGETS_QWINDOWKIT_USED} (${WYWIDGETS_QWINDOWKIT_REASON})")
message(STATUS "  shortcut keys   ${WYWIDGETS_KEY_MAPPER_USED}")
message(STATUS "  designer plugin ${WYWIDGETS_DESIGNER_USED}")
message(STATUS "  translations    ${WYWIDGETS_TRANSLATIONS}")
message(STATUS "  toast resources ${WYWIDGETS_TOAST_RESOURCE_DIR}")
message(STATUS "  gallery ${WYWIDGETS_BUILD_GALLERY}, tests ${WYWIDGETS_BUILD_TESTS}, "
               "benchmarks ${WYWIDGETS_BUILD_BENCHMARKS}, sanitizers ${WYWIDGETS_SANITIZE}")
