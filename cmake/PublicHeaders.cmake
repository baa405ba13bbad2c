# SPDX-License-Identifier: MIT
include(GenerateExportHeader)

# olv_public_headers(<target> <header>...)
#
# Gives the library <target> its public headers, which lie in include/<target>/, and everything that
# is made from them: the export header, one forwarding header per exported class (so that
# "#include <OlvSlider>" works) and the umbrella header <<target>/<target>>. Nothing but what these
# headers declare is exported. The target's property OLV_PUBLIC_HEADERS lists the headers and the umbrella.
function(olv_public_headers target)
    string(TOLOWER ${target} lower)
    string(TOUPPER ${target} upper)
    set(source_dir ${PROJECT_SOURCE_DIR}/include)
    set(generated_dir ${PROJECT_BINARY_DIR}/include)

    generate_export_header(${target}
        EXPORT_MACRO_NAME ${upper}_EXPORT
        EXPORT_FILE_NAME ${generated_dir}/${target}/${lower}_export.h)
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC ${upper}_STATIC_DEFINE)
    endif()
    set(installed ${generated_dir}/${target}/${lower}_export.h)
    set(symbols ${PROJECT_SOURCE_DIR}/cmake/ExportedSymbols.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${symbols})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${symbols})

    # REUSE-IgnoreStart
    set(umbrella "// SPDX-License-Identifier: MIT\n#pragma once\n")
    foreach(header IN LISTS ARGN)
        set(path ${source_dir}/${target}/${header})
        # AUTOMOC looks for Q_OBJECT in headers that are sources of the target
        target_sources(${target} PRIVATE ${path})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
        list(APPEND installed ${path})
        string(APPEND umbrella "#include <${target}/${header}>\n")

        file(STRINGS ${path} lines REGEX "^class ${upper}_EXPORT [A-Za-z0-9_]+")
        foreach(line IN LISTS lines)
            string(REGEX REPLACE "^class ${upper}_EXPORT ([A-Za-z0-9_]+).*" "\\1" class "${line}")
            olv_write_if_changed(${generated_dir}/${target}/${class}
                "// SPDX-License-Identifier: MIT\n#include <${target}/${header}>\n")
            list(APPEND installed ${generated_dir}/${target}/${class})
        endforeach()
    endforeach()
    # REUSE-IgnoreEnd
    olv_write_if_changed(${generated_dir}/${target}/${target} "${umbrella}")
    list(APPEND installed ${generated_dir}/${target}/${target})

    set_property(TARGET ${target} PROPERTY OLV_PUBLIC_HEADERS ${ARGN} ${target})

    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${source_dir}>
        $<BUILD_INTERFACE:${generated_dir}>
        $<BUILD_INTERFACE:${generated_dir}/${target}>
        $<INSTALL_INTERFACE:${OLV_INCLUDEDIR}>
        $<INSTALL_INTERFACE:${OLV_INCLUDEDIR}/${target}>)
    if(OLVWIDGETS_INSTALL)
        install(FILES ${installed}
            DESTINATION ${OLV_INCLUDEDIR}/${target}
            COMPONENT development)
    endif()
endfunction()

# An unchanged header keeps its time stamp, so that configuring again rebuilds nothing.
function(olv_write_if_changed path content)
    if(EXISTS ${path})
        file(READ ${path} old)
        if(old STREQUAL content)
            return()
        endif()
    endif()
    file(WRITE ${path} "${content}")
endfunction()
