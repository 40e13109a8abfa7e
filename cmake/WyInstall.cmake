# What "cmake --install" puts where, and the packages that cpack makes of it.
#
#   include/WyWidgets/…         headers, by folder and flat
#   lib/                        the library, its CMake package and pkg-config file
#   Qt's plugins/designer/      the Designer plugin, where Qt's own plugins are under its prefix
#   share/WyWidgets/            the toast's css/ and icons/, themes/, translations/, wywidgets.pri
#   share/doc/                  the licence, the reference of the headers
#
# Components: runtime (the library and what it reads), designer (the Designer plugin), development (the rest).

include(CMakePackageConfigHelpers)

set(WYWIDGETS_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/WyWidgets)
set(pcDir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS WyWidgets EXPORT WyWidgetsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(EXPORT WyWidgetsTargets
    NAMESPACE WyWidgets::
    DESTINATION ${WYWIDGETS_INSTALL_CMAKEDIR}
    COMPONENT development)

get_target_property(headers WyWidgets WY_PUBLIC_HEADERS)
foreach(header IN LISTS headers)
    get_filename_component(folder ${header} DIRECTORY)
    get_filename_component(name ${header} NAME)
    install(FILES ${PROJECT_SOURCE_DIR}/src/common/WyWidgets/${header}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/WyWidgets/${folder} COMPONENT development)
    install(FILES ${PROJECT_BINARY_DIR}/include/WyWidgets/${name}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/WyWidgets COMPONENT development)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/include/WyWidgets/WyExport.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/WyWidgets COMPONENT development)

install(DIRECTORY ${WYWIDGETS_TOAST_RESOURCE_DIR}/css ${WYWIDGETS_TOAST_RESOURCE_DIR}/icons
    DESTINATION ${WYWIDGETS_INSTALL_DATADIR} COMPONENT runtime
    FILES_MATCHING PATTERN "*.css" PATTERN "*.png")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/themes
    DESTINATION ${WYWIDGETS_INSTALL_DATADIR} COMPONENT runtime
    FILES_MATCHING PATTERN "*.qss" PATTERN "*.qrc" PATTERN "*.png" PATTERN "sections" EXCLUDE)
if(TARGET WyWidgetsTranslations)
    get_target_property(files WyWidgetsTranslations WY_FILES)
    install(FILES ${files} DESTINATION ${WYWIDGETS_INSTALL_DATADIR}/translations COMPONENT runtime)
endif()

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
# The reference is there if the target "docs" has written it.
install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/reference/html
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/reference COMPONENT development OPTIONAL)

configure_package_config_file(${PROJECT_SOURCE_DIR}/packaging/templates/WyWidgetsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/package/WyWidgetsConfig.cmake
    INSTALL_DESTINATION ${WYWIDGETS_INSTALL_CMAKEDIR}
    PATH_VARS WYWIDGETS_INSTALL_DATADIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/WyWidgetsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/package/WyWidgetsConfig.cmake
    ${PROJECT_BINARY_DIR}/package/WyWidgetsConfigVersion.cmake
    DESTINATION ${WYWIDGETS_INSTALL_CMAKEDIR} COMPONENT development)

# Both files find the rest relative to themselves, so an installation can be moved as a whole.
file(RELATIVE_PATH WYWIDGETS_PC_TO_PREFIX /prefix/${pcDir} /prefix)
file(RELATIVE_PATH WYWIDGETS_DATA_TO_PREFIX /prefix/${WYWIDGETS_INSTALL_DATADIR} /prefix)
configure_file(${PROJECT_SOURCE_DIR}/packaging/templates/wywidgets.pc.in
    ${PROJECT_BINARY_DIR}/package/wywidgets.pc @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/packaging/templates/wywidgets.pri.in
    ${PROJECT_BINARY_DIR}/package/wywidgets.pri @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/package/wywidgets.pc DESTINATION ${pcDir} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/package/wywidgets.pri
    DESTINATION ${WYWIDGETS_INSTALL_DATADIR} COMPONENT development)

if(TARGET WyWidgetsDesigner)
    install(TARGETS WyWidgetsDesigner
        LIBRARY DESTINATION ${WYWIDGETS_INSTALL_DESIGNERDIR} COMPONENT designer)
endif()

if(NOT wy_top_level)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wywidgets)
set(CPACK_PACKAGE_VENDOR "The WyWidgets authors")
set(CPACK_PACKAGE_CONTACT "The WyWidgets authors <authors@wywidgets.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET WyWidgetsDesigner)
    list(APPEND CPACK_COMPONENTS_ALL designer)
endif()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libwywidgets${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libwywidgets-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "libwywidgets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), qtbase5-dev")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME wywidgets-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS
    "libwywidgets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), qttools5-dev-tools")
include(CPack)
