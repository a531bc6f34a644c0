# Run by cpack on the tree of the Debian package: adds the copyright file and the changelogs and
# compresses what Debian requires to be compressed.
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(doc ${share}/doc/tonquill)
# Independent of the umask and of the permissions of the source files.
set(for_everybody FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(COPY ${CPACK_TONQUILL_SOURCE_DIR}/packaging/copyright DESTINATION ${doc} ${for_everybody})
configure_file(${CPACK_TONQUILL_SOURCE_DIR}/CHANGELOG.md ${doc}/changelog
    COPYONLY ${for_everybody})

set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
configure_file(${CPACK_TONQUILL_SOURCE_DIR}/packaging/changelog.Debian.in
    ${doc}/changelog.Debian @ONLY ${for_everybody})

file(GLOB pages ${share}/man/man1/*.1)
execute_process(COMMAND gzip --best --no-name ${doc}/changelog ${doc}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)

# The same for the folders above those that cmake installs.
file(GLOB_RECURSE folders LIST_DIRECTORIES true ${CPACK_TEMPORARY_DIRECTORY}/*)
list(FILTER folders EXCLUDE REGEX "/DEBIAN")
foreach(folder IN LISTS folders ITEMS ${CPACK_TEMPORARY_DIRECTORY})
    if(IS_DIRECTORY ${folder} AND NOT IS_SYMLINK ${folder})
        file(CHMOD ${folder} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
            GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    endif()
endforeach()
