# SPDX-License-Identifier: MIT
# Run by CPack after the installation and before the packages are made: compares each library with its
# symbols file, makes the control files of its package, and tells dpkg-shlibdeps which of the new packages
# contains which library.
#
# CPACK_OLV_LIBRARIES: for each library its component, its name and its package.
set(version ${CPACK_PACKAGE_VERSION})
string(REGEX MATCH "^[0-9]+" major ${version})

foreach(library_of_component IN LISTS CPACK_OLV_LIBRARIES)
    separate_arguments(library_of_component)
    list(GET library_of_component 0 component)
    list(GET library_of_component 1 library)
    list(GET library_of_component 2 package)
    file(GLOB file
        ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/${CPACK_OLV_LIBDIR}/${library}.so.${version})
    set(control_dir ${CPACK_OLV_GENERATED_DIR}/${package})
    set(dependency "${library} ${major} ${package} (>= ${version})\n")
    file(WRITE ${control_dir}/shlibs "${dependency}")
    file(WRITE ${control_dir}/triggers "activate-noawait ldconfig\n")
    string(APPEND shlibs "${dependency}")
    # level 4: added and removed symbols are errors, and the difference is printed
    execute_process(
        COMMAND dpkg-gensymbols -c4 -p${package} -v${version} -e${file}
            -I${CPACK_OLV_PACKAGING_DIR}/${package}.symbols -O${control_dir}/symbols
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${library} does not have the symbols that packaging/${package}.symbols "
            "lists: bring the list up to date, and the soname if a symbol has gone.")
    endif()
endforeach()

foreach(component widgets systeminfo designer)
    # CPack runs dpkg-shlibdeps in this folder, and removes "debian" from it afterwards
    file(WRITE ${CPACK_TEMPORARY_DIRECTORY}/${component}/debian/shlibs.local "${shlibs}")
endforeach()
