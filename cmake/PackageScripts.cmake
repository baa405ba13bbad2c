# SPDX-License-Identifier: MIT
# Run by CPack once it has made the packages: takes out the maintainer scripts that CPack gives to the
# packages of libraries, which run ldconfig. Their triggers do that already, once for all packages. And
# says what CPack cannot say: all files lie in folders of their architecture, or are the same in all, so
# that the packages of several architectures can be installed side by side.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(content ${CPACK_OLV_GENERATED_DIR}/content)
    file(REMOVE_RECURSE ${content})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${content}
        COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
    set(multi_arch same)
    if(package MATCHES "_all\\.deb$")
        set(multi_arch foreign)
    endif()
    file(READ ${content}/DEBIAN/control control)
    string(REPLACE "\nDescription:" "\nMulti-Arch: ${multi_arch}\nDescription:" control "${control}")
    file(WRITE ${content}/DEBIAN/control "${control}")
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${content} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${content})
endforeach()
