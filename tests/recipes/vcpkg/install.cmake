# SPDX-License-Identifier: MIT
# Usage: cmake -DROOT=... -DSCRATCH=... -P install.cmake
#
# Does what vcpkg does with a port: reads its manifest, runs its portfile, checks what that has installed.
cmake_minimum_required(VERSION 3.21)

set(CURRENT_PORT_DIR ${ROOT}/packaging/vcpkg/ports/olvwidgets)
file(READ ${CURRENT_PORT_DIR}/vcpkg.json manifest)
string(JSON PORT GET "${manifest}" name)
string(JSON VERSION GET "${manifest}" version)
string(JSON FEATURES GET "${manifest}" default-features)
string(JSON feature_count LENGTH "${manifest}" features)
math(EXPR last_feature "${feature_count} - 1")
foreach(index RANGE ${last_feature})
    string(JSON feature MEMBER "${manifest}" features ${index})
    list(APPEND ALL_FEATURES ${feature})
endforeach()
string(REGEX MATCHALL "[a-z0-9-]+" FEATURES "${FEATURES}")
foreach(feature IN LISTS FEATURES)
    if(NOT feature IN_LIST ALL_FEATURES)
        message(FATAL_ERROR "vcpkg.json has no feature ${feature}")
    endif()
endforeach()

set(TARGET_TRIPLET x64-linux-dynamic)
set(CURRENT_PACKAGES_DIR ${SCRATCH}/packages/${PORT}_${TARGET_TRIPLET})
set(CURRENT_BUILDTREES_DIR ${SCRATCH}/buildtrees/${PORT})
include(${CMAKE_CURRENT_LIST_DIR}/functions.cmake)
include(${CURRENT_PORT_DIR}/portfile.cmake)

# as vcpkg does after a port is built
file(GLOB misplaced ${CURRENT_PACKAGES_DIR}/debug/include ${CURRENT_PACKAGES_DIR}/debug/share
    ${CURRENT_PACKAGES_DIR}/lib/cmake ${CURRENT_PACKAGES_DIR}/debug/lib/cmake
    ${CURRENT_PACKAGES_DIR}/lib/*.a)
if(misplaced)
    message(FATAL_ERROR "this must not be there: ${misplaced}")
endif()
foreach(file include share/${PORT}/copyright share/${PORT}/usage lib debug/lib)
    if(NOT EXISTS ${CURRENT_PACKAGES_DIR}/${file})
        message(FATAL_ERROR "${file} is missing")
    endif()
endforeach()
file(GLOB_RECURSE files LIST_DIRECTORIES ON ${CURRENT_PACKAGES_DIR}/*)
foreach(file IN LISTS files)
    file(GLOB content ${file}/*)
    if(IS_DIRECTORY ${file} AND NOT content)
        message(FATAL_ERROR "${file} is empty")
    endif()
endforeach()
file(GLOB_RECURSE texts ${CURRENT_PACKAGES_DIR}/*.cmake ${CURRENT_PACKAGES_DIR}/*.pc
    ${CURRENT_PACKAGES_DIR}/*.pri)
foreach(file IN LISTS texts)
    file(READ ${file} text)
    string(FIND "${text}" ${SCRATCH} position)
    if(NOT position EQUAL -1)
        message(FATAL_ERROR "${file} has a path of the build")
    endif()
endforeach()
