# SPDX-License-Identifier: MIT
# An overlay port: it builds the sources that it lies in.
get_filename_component(SOURCE_PATH "${CURRENT_PORT_DIR}/../../../.." ABSOLUTE)

# a static library is built as a part of the program's own project
vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
vcpkg_check_features(OUT_FEATURE_OPTIONS FEATURE_OPTIONS
    FEATURES
        portal-shortcuts OLVWIDGETS_PORTAL_SHORTCUTS
        x11-shortcuts OLVWIDGETS_X11_SHORTCUTS)
vcpkg_find_acquire_program(PKGCONFIG)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        ${FEATURE_OPTIONS}
        -DBUILD_TESTING=OFF
        -DOLVWIDGETS_QT_MAJOR=6
        -DOLVWIDGETS_BUILD_EXAMPLES=OFF
        -DOLVWIDGETS_BUILD_DESIGNER=OFF
        "-DPKG_CONFIG_EXECUTABLE=${PKGCONFIG}")
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME OlvWidgets-qt6 CONFIG_PATH lib/cmake/OlvWidgets-qt6)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
