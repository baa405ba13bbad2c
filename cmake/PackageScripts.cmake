# SPDX-License-Identifier: MIT
# Run by CPack once it has made the packages. Removes the maintainer scripts that CPack adds to packages of
# libraries to run ldconfig, since the packages' triggers do that already. Adds the field Multi-Arch, which
# CPack cannot write: files lie in folders of their architecture or are the same on all architectures, so
# that the packages of several architectures can be installed together.
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
