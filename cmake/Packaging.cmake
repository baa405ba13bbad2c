# SPDX-License-Identifier: MIT
# The Debian packages, one per component. "cpack -G DEB" makes them in a build tree configured with the
# prefix /usr; scripts/packages does both.
set(olv_packaging_dir ${PROJECT_SOURCE_DIR}/packaging)
# The changelog has the version. Its revision begins with 0, so that Debian's own package, whose revision
# would begin at 1, would be newer.
file(STRINGS ${olv_packaging_dir}/changelog olv_changelog_entry LIMIT_COUNT 1)
string(REGEX MATCH "\\(([^-]+)-([^)]+)\\)" olv_debian_version "${olv_changelog_entry}")
if(NOT CMAKE_MATCH_1 VERSION_EQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/changelog is not that of version ${PROJECT_VERSION}")
endif()
set(olv_debian_revision ${CMAKE_MATCH_2})
set(olv_debian_version ${PROJECT_VERSION}-${olv_debian_revision})

# olv_package(<component> <package> <section> <synopsis> <description> [DEPENDS <dependency>...]
#             [RECOMMENDS <package>...] [SUGGESTS <package>...]
#             [ENHANCES <package>...] [LIBRARY])
#
# LIBRARY is for the package of a shared library, which needs more control files, made by
# PackageSymbols.cmake.
function(olv_package component package section synopsis description)
    cmake_parse_arguments(arg "LIBRARY" "" "DEPENDS;RECOMMENDS;SUGGESTS;ENHANCES" ${ARGN})
    string(TOUPPER ${component} upper)
    foreach(relation DEPENDS RECOMMENDS SUGGESTS ENHANCES)
        list(JOIN arg_${relation} ", " packages)
        set(CPACK_DEBIAN_${upper}_PACKAGE_${relation} "${packages}" PARENT_SCOPE)
    endforeach()
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${synopsis}\n${description}" PARENT_SCOPE)
    if(arg_LIBRARY)
        set(control_dir ${PROJECT_BINARY_DIR}/packaging/${package})
        set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
            ${control_dir}/shlibs ${control_dir}/symbols ${control_dir}/triggers PARENT_SCOPE)
    endif()

    # Debian policy requires a changelog and the licence in each package
    set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package})
    install(FILES ${olv_packaging_dir}/copyright
        DESTINATION ${doc_dir}
        COMPONENT ${component} EXCLUDE_FROM_ALL)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz
        ${PROJECT_BINARY_DIR}/packaging/changelog.gz
        DESTINATION ${doc_dir}
        COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

# without gzip's time stamp and file name, which would make the packages of two builds differ
find_program(OLVWIDGETS_GZIP gzip)
function(olv_compress source target)
    if(OLVWIDGETS_GZIP)
        configure_file(${source} ${PROJECT_BINARY_DIR}/packaging/${target} COPYONLY)
        execute_process(COMMAND ${OLVWIDGETS_GZIP} -9nkf ${PROJECT_BINARY_DIR}/packaging/${target})
    endif()
endfunction()
olv_compress(${olv_packaging_dir}/changelog changelog.Debian)
olv_compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)

set(olv_about
    "OlvWidgets is a library of buttons, icon buttons, text fields, switches,
sliders, containers and what a window without a frame needs, for Qt ${OLVWIDGETS_QT_MAJOR} programs.")
olv_debian_library(OlvWidgets olv_widgets_package)
olv_debian_library(OlvSystemInfo olv_systeminfo_package)
set(olv_development_package libolvwidgets${OLV_SUFFIX}-dev)
set(olv_documentation_package libolvwidgets${OLV_SUFFIX}-doc)
if(OLVWIDGETS_QT_MAJOR EQUAL 5)
    set(olv_qt_package qtbase5-dev)
    set(olv_qt_designer_package qttools5-dev-tools)
else()
    set(olv_qt_package qt6-base-dev)
    set(olv_qt_designer_package designer-qt6)
endif()
olv_package(widgets ${olv_widgets_package} libs
    "ready-made Qt ${OLVWIDGETS_QT_MAJOR} widgets for desktop applications"
    "${olv_about}
.
This package contains the library itself."
    LIBRARY
    # has the glyphs of control bars and password buttons
    RECOMMENDS fonts-font-awesome)
olv_package(systeminfo ${olv_systeminfo_package} libs
    "shortcuts on the whole desktop for Qt ${OLVWIDGETS_QT_MAJOR} programs"
    "OlvSystemInfo lets a Qt ${OLVWIDGETS_QT_MAJOR} program register keyboard shortcuts that work on the
whole desktop, whichever window has the focus. It belongs to OlvWidgets.
.
This package contains the library itself."
    LIBRARY)
olv_package(development ${olv_development_package} libdevel
    "ready-made Qt ${OLVWIDGETS_QT_MAJOR} widgets (development files)"
    "${olv_about}
.
This package contains the headers, and what CMake, pkg-config and qmake need
to build programs with it and with the library OlvSystemInfo."
    DEPENDS
    "${olv_widgets_package} (= ${olv_debian_version})"
    "${olv_systeminfo_package} (= ${olv_debian_version})"
    "${olv_qt_package} (>= ${OLVWIDGETS_QT_VERSION})"
    SUGGESTS ${olv_documentation_package})
olv_package(designer olvwidgets${OLV_SUFFIX}-designer libdevel
    "ready-made Qt ${OLVWIDGETS_QT_MAJOR} widgets (Qt Designer plugin)"
    "${olv_about}
.
This package contains the plugin that offers the widgets in Qt Designer, and
lets programs load forms that use them."
    ENHANCES ${olv_qt_designer_package})
if(OLVWIDGETS_BUILD_DOCS)
    olv_package(documentation ${olv_documentation_package} doc
        "ready-made Qt ${OLVWIDGETS_QT_MAJOR} widgets (documentation)"
        "${olv_about}
.
This package contains the documentation of the classes and the guides, as a
help file for Qt Creator, Qt Designer and Qt Assistant.")
    set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME olvwidgets)
set(CPACK_PACKAGE_CONTACT "The OlvWidgets authors <authors@olvwidgets.example>")
set(CPACK_COMPONENTS_ALL widgets systeminfo development)
if(OLVWIDGETS_BUILD_DESIGNER)
    list(APPEND CPACK_COMPONENTS_ALL designer)
endif()
if(OLVWIDGETS_BUILD_DOCS)
    list(APPEND CPACK_COMPONENTS_ALL documentation)
endif()
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PackageSymbols.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PackageScripts.cmake)
set(CPACK_OLV_PACKAGING_DIR ${olv_packaging_dir})
set(CPACK_OLV_GENERATED_DIR ${PROJECT_BINARY_DIR}/packaging)
set(CPACK_OLV_LIBDIR ${CMAKE_INSTALL_LIBDIR})
set(CPACK_OLV_LIBRARIES
    "widgets libOlvWidgets${OLV_SUFFIX} ${olv_widgets_package}"
    "systeminfo libOlvSystemInfo${OLV_SUFFIX} ${olv_systeminfo_package}")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${olv_debian_revision})
set(CPACK_DEBIAN_PACKAGE_SOURCE olvwidgets)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/systeminfo)
include(CPack)
