# SPDX-License-Identifier: MIT
# The compile options of all targets of this project. Targets link it privately, so that users of the
# libraries do not inherit them.
add_library(olv_build_options INTERFACE)

target_compile_options(olv_build_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
    -Wcast-qual -Wcast-align -Wconversion -Wformat=2 -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wsuggest-override>
    $<$<BOOL:${OLVWIDGETS_WERROR}>:-Werror>)

target_compile_definitions(olv_build_options INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS)

# In a unity build every source is included by another file, where GCC warns of what is local to it.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(olv_build_options INTERFACE -Wno-subobject-linkage)
endif()
if(OLVWIDGETS_SANITIZE)
    target_compile_options(olv_build_options INTERFACE
        -fsanitize=${OLVWIDGETS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(olv_build_options INTERFACE -fsanitize=${OLVWIDGETS_SANITIZE})
endif()
if(OLVWIDGETS_COVERAGE)
    target_compile_options(olv_build_options INTERFACE --coverage -O0)
    target_link_options(olv_build_options INTERFACE --coverage)
endif()
