# SPDX-License-Identifier: MIT
include(CMakePackageConfigHelpers)

set(olv_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OlvWidgets${OLV_SUFFIX})
set(olv_qmake_dir ${CMAKE_INSTALL_LIBDIR}/qt${OLVWIDGETS_QT_MAJOR}/mkspecs/modules)

# The components match the packages of a distribution: one for each library, one for developers, and one
# for the Designer plugin, which its own folder installs.
install(TARGETS OlvWidgets
    EXPORT OlvWidgetsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT widgets NAMELINK_COMPONENT development)
install(TARGETS OlvSystemInfo
    EXPORT OlvSystemInfoTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT systeminfo NAMELINK_COMPONENT development)
foreach(library OlvSystemInfo OlvWidgets)
    install(EXPORT ${library}Targets
        NAMESPACE OlvWidgets::
        DESTINATION ${olv_cmake_dir}
        COMPONENT development)
endforeach()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/OlvWidgetsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/OlvWidgets${OLV_SUFFIX}Config.cmake
    INSTALL_DESTINATION ${olv_cmake_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OlvWidgets${OLV_SUFFIX}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/OlvWidgets${OLV_SUFFIX}Config.cmake
    ${PROJECT_BINARY_DIR}/OlvWidgets${OLV_SUFFIX}ConfigVersion.cmake
    DESTINATION ${olv_cmake_dir}
    COMPONENT development)

# The files for pkg-config and qmake name folders relative to their own, so that a tree installed into
# another prefix (cmake --install --prefix) works unchanged.
file(RELATIVE_PATH olv_prefix_from_pkgconfig
    /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
file(RELATIVE_PATH olv_prefix_from_qmake /prefix/${olv_qmake_dir} /prefix)
foreach(module OlvWidgets OlvSystemInfo)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${module}.pc.in
        ${PROJECT_BINARY_DIR}/${module}${OLV_SUFFIX}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${module}${OLV_SUFFIX}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/qt_${module}.pri.in
        ${PROJECT_BINARY_DIR}/qt_${module}.pri @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/qt_${module}.pri
        DESTINATION ${olv_qmake_dir}
        COMPONENT development)
endforeach()
