# SPDX-License-Identifier: MIT
# Stand in for the functions of vcpkg that packaging/vcpkg calls, with what its documentation says of them.
# An argument that they do not know is an error.
set(configurations rel dbg)
set(build_type_rel Release)
set(build_type_dbg Debug)
set(folder_rel "")
set(folder_dbg /debug)

function(olv_expect_no_more)
    if(ARGN)
        message(FATAL_ERROR "these arguments are not known: ${ARGN}")
    endif()
endfunction()

function(olv_run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# the one limit on linkage that a port of a shared library needs
macro(vcpkg_check_linkage limit)
    if(NOT "${limit}" STREQUAL "ONLY_DYNAMIC_LIBRARY")
        message(FATAL_ERROR "this limit of the linkage is not known: ${limit}")
    endif()
    set(VCPKG_LIBRARY_LINKAGE dynamic)
endmacro()

function(vcpkg_check_features)
    cmake_parse_arguments(arg "" "OUT_FEATURE_OPTIONS" "FEATURES" ${ARGN})
    olv_expect_no_more(${arg_UNPARSED_ARGUMENTS})
    set(options "")
    while(arg_FEATURES)
        list(POP_FRONT arg_FEATURES feature variable)
        if(NOT feature IN_LIST ALL_FEATURES)
            message(FATAL_ERROR "vcpkg.json has no feature ${feature}")
        endif()
        set(value OFF)
        if(feature IN_LIST FEATURES)
            set(value ON)
        endif()
        list(APPEND options -D${variable}=${value})
    endwhile()
    set(${arg_OUT_FEATURE_OPTIONS} ${options} PARENT_SCOPE)
endfunction()

function(vcpkg_find_acquire_program program)
    if(NOT program STREQUAL "PKGCONFIG")
        message(FATAL_ERROR "this program is not known: ${program}")
    endif()
    find_program(PKGCONFIG pkg-config REQUIRED)
endfunction()

function(vcpkg_cmake_configure)
    cmake_parse_arguments(arg "" "SOURCE_PATH" "OPTIONS" ${ARGN})
    olv_expect_no_more(${arg_UNPARSED_ARGUMENTS})
    foreach(configuration IN LISTS configurations)
        olv_run(${CMAKE_COMMAND} -G Ninja -S ${arg_SOURCE_PATH}
            -B ${CURRENT_BUILDTREES_DIR}/${TARGET_TRIPLET}-${configuration}
            ${arg_OPTIONS}
            -DBUILD_SHARED_LIBS=ON
            -DCMAKE_BUILD_TYPE=${build_type_${configuration}}
            -DCMAKE_INSTALL_PREFIX=${CURRENT_PACKAGES_DIR}${folder_${configuration}}
            -DCMAKE_INSTALL_LIBDIR=lib
            -DFETCHCONTENT_FULLY_DISCONNECTED=ON)
    endforeach()
endfunction()

function(vcpkg_cmake_install)
    olv_expect_no_more(${ARGN})
    foreach(configuration IN LISTS configurations)
        olv_run(${CMAKE_COMMAND}
            --build ${CURRENT_BUILDTREES_DIR}/${TARGET_TRIPLET}-${configuration} --target install)
    endforeach()
endfunction()

# Moves the files for CMake to share/, those of the debug build too, and corrects their relative paths.
function(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(arg "" "PACKAGE_NAME;CONFIG_PATH" "" ${ARGN})
    olv_expect_no_more(${arg_UNPARSED_ARGUMENTS})
    set(share ${CURRENT_PACKAGES_DIR}/share/${arg_PACKAGE_NAME})
    set(debug_files ${CURRENT_PACKAGES_DIR}/debug/${arg_CONFIG_PATH})
    file(MAKE_DIRECTORY ${CURRENT_PACKAGES_DIR}/share)
    file(RENAME ${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH} ${share})
    file(GLOB targets_of_debug ${debug_files}/*-debug.cmake)
    foreach(file IN LISTS targets_of_debug)
        file(READ ${file} text)
        string(REPLACE "\${_IMPORT_PREFIX}" "\${_IMPORT_PREFIX}/debug" text "${text}")
        get_filename_component(name ${file} NAME)
        file(WRITE ${share}/${name} "${text}")
    endforeach()
    file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR}/lib/cmake ${CURRENT_PACKAGES_DIR}/debug/lib/cmake)

    set(up "get_filename_component(_IMPORT_PREFIX \"\${_IMPORT_PREFIX}\" PATH)\n")
    file(GLOB files ${share}/*.cmake)
    foreach(file IN LISTS files)
        file(READ ${file} text)
        # one folder less than from lib/cmake/NAME
        string(REPLACE "${up}${up}${up}" "${up}${up}" text "${text}")
        string(REPLACE "\${CMAKE_CURRENT_LIST_DIR}/../../../" "\${CMAKE_CURRENT_LIST_DIR}/../../"
            text "${text}")
        file(WRITE ${file} "${text}")
    endforeach()
endfunction()

# The project's files for pkg-config are relative to their own folder, which stays.
function(vcpkg_fixup_pkgconfig)
    olv_expect_no_more(${ARGN})
    set(ENV{PKG_CONFIG_PATH} ${CURRENT_PACKAGES_DIR}/lib/pkgconfig)
    file(GLOB modules RELATIVE ${CURRENT_PACKAGES_DIR}/lib/pkgconfig ${CURRENT_PACKAGES_DIR}/lib/pkgconfig/*.pc)
    list(TRANSFORM modules REPLACE "\\.pc$" "")
    olv_run(pkg-config --exists --print-errors ${modules})
endfunction()

function(vcpkg_install_copyright)
    cmake_parse_arguments(arg "" "" "FILE_LIST" ${ARGN})
    olv_expect_no_more(${arg_UNPARSED_ARGUMENTS})
    file(READ ${arg_FILE_LIST} text)
    file(WRITE ${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright "${text}")
endfunction()
