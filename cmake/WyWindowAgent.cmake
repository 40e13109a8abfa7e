# Chooses the window agent: an installed QWindowKit package or the embedded stand-in. Included by the top-level
# list, since what find_package() imports is visible only from its own folder downwards.

set(WYWIDGETS_QWINDOWKIT_USED embedded)
set(WYWIDGETS_QWINDOWKIT_REASON "chosen by WYWIDGETS_QWINDOWKIT")

if(WYWIDGETS_QWINDOWKIT STREQUAL "auto" OR WYWIDGETS_QWINDOWKIT STREQUAL "system")
    find_package(QWindowKit QUIET COMPONENTS Core Widgets)
    if(QWindowKit_FOUND)
        set(WYWIDGETS_QWINDOWKIT_USED system)
        set(WYWIDGETS_QWINDOWKIT_REASON "installed package ${QWindowKit_VERSION} found")
    elseif(WYWIDGETS_QWINDOWKIT STREQUAL "auto")
        set(WYWIDGETS_QWINDOWKIT_REASON "no installed package found")
    else()
        message(FATAL_ERROR
            "WYWIDGETS_QWINDOWKIT is \"system\", but no QWindowKit package with Core and Widgets was found. "
            "Install it and name its prefix in CMAKE_PREFIX_PATH, or choose \"auto\" or \"embedded\".")
    endif()
elseif(NOT WYWIDGETS_QWINDOWKIT STREQUAL "embedded")
    message(FATAL_ERROR
        "WYWIDGETS_QWINDOWKIT is \"${WYWIDGETS_QWINDOWKIT}\"; it may be \"auto\", \"system\" or \"embedded\".")
endif()
