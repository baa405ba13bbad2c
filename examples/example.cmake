# SPDX-License-Identifier: MIT
# Shared by the examples. Each of them can also be configured alone, with an installed library.
set(OLVWIDGETS_QT_MAJOR 5 CACHE STRING "The major version of Qt to build with: 5 or 6")
if(NOT TARGET OlvWidgets::OlvWidgets)
    if(OLVWIDGETS_QT_MAJOR EQUAL 5)
        find_package(OlvWidgets 1.0 REQUIRED)
    else()
        find_package(OlvWidgets-qt6 1.0 REQUIRED)
    endif()
endif()

find_file(OLVWIDGETS_ICON_FONT FontAwesome.otf
    PATHS /usr/share/fonts/opentype/font-awesome
    NO_DEFAULT_PATH)
if(NOT OLVWIDGETS_ICON_FONT)
    message(FATAL_ERROR "FontAwesome.otf is missing: install the Debian package fonts-font-awesome")
endif()

# olv_ship_icon_font(<program>)
#
# Ships the icon font with <program> as an application should. The font job lists the folder "Font" and
# loads from the folder "fonts", so the program needs both names beside it.
function(olv_ship_icon_font program)
    set(fonts ${CMAKE_CURRENT_BINARY_DIR}/Font)
    add_custom_command(
        OUTPUT ${fonts}/FontAwesome.otf
        COMMAND ${CMAKE_COMMAND} -E make_directory ${fonts}
        COMMAND ${CMAKE_COMMAND} -E copy ${OLVWIDGETS_ICON_FONT} ${fonts}/FontAwesome.otf
        COMMAND ${CMAKE_COMMAND} -E create_symlink Font ${CMAKE_CURRENT_BINARY_DIR}/fonts
        DEPENDS ${OLVWIDGETS_ICON_FONT})
    add_custom_target(${program}_fonts DEPENDS ${fonts}/FontAwesome.otf)
    add_dependencies(${program} ${program}_fonts)
endfunction()

# olv_example(<program>)
#
# An example of one source file, with the icon font beside it.
function(olv_example program)
    add_executable(${program} main.cpp)
    set_target_properties(${program} PROPERTIES AUTOMOC ON)
    target_link_libraries(${program} PRIVATE
        OlvWidgets::OlvWidgets $<TARGET_NAME_IF_EXISTS:olv_build_options>)
    olv_ship_icon_font(${program})
endfunction()
