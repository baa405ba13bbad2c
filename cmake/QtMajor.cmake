# SPDX-License-Identifier: MIT
# What depends on the major version of Qt. What is built with Qt 6 has a suffix in its names, so that it can
# be installed beside what is built with Qt 5, whose names were there first.
# A project around this one may have set it as a variable, which must not be replaced.
if(NOT DEFINED OLVWIDGETS_QT_MAJOR)
    set(OLVWIDGETS_QT_MAJOR 5 CACHE STRING "The major version of Qt to build with: 5 or 6")
    set_property(CACHE OLVWIDGETS_QT_MAJOR PROPERTY STRINGS 5 6)
endif()

if(OLVWIDGETS_QT_MAJOR EQUAL 5)
    set(OLVWIDGETS_QT_VERSION 5.11)
    set(OLV_SUFFIX "")
    set(OLV_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
elseif(OLVWIDGETS_QT_MAJOR EQUAL 6)
    set(OLVWIDGETS_QT_VERSION 6.4)
    set(OLV_SUFFIX -qt6)
    set(OLV_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/OlvWidgets${OLV_SUFFIX})
else()
    message(FATAL_ERROR "OLVWIDGETS_QT_MAJOR is ${OLVWIDGETS_QT_MAJOR}, but has to be 5 or 6")
endif()
# Qt's packages and targets have names that begin with this.
set(OLV_QT Qt${OLVWIDGETS_QT_MAJOR})

# olv_debian_library(<library> <variable>)
#
# Sets <variable> to the Debian package of a library, whose name policy forms from that of the soname.
function(olv_debian_library library variable)
    string(TOLOWER lib${library}${OLV_SUFFIX} package)
    if(package MATCHES "[0-9]$")
        string(APPEND package -)
    endif()
    set(${variable} ${package}${PROJECT_VERSION_MAJOR} PARENT_SCOPE)
endfunction()
