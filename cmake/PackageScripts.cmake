# SPDX-License-Identifier: MIT
# Run by CPack once it has made the packages: takes out the maintainer scripts that CPack gives to the
# packages of libraries, which run ldconfig. Their triggers do that already, once for all packages.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(content ${CPACK_OLV_GENERATED_DIR}/content)
    file(REMOVE_RECURSE ${content})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${content}
        COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${content} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${content})
endforeach()
