# Run by cpack on the tree that becomes the Debian package: the copyright file and the changelogs,
# and everything packed that Debian wants packed.
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(doc ${share}/doc/tonquill)
file(COPY ${CPACK_TONQUILL_SOURCE_DIR}/packaging/copyright DESTINATION ${doc})
configure_file(${CPACK_TONQUILL_SOURCE_DIR}/CHANGELOG.md ${doc}/changelog COPYONLY)

set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
configure_file(${CPACK_TONQUILL_SOURCE_DIR}/packaging/changelog.Debian.in
    ${doc}/changelog.Debian @ONLY)

file(GLOB pages ${share}/man/man1/*.1)
execute_process(COMMAND gzip --best --no-name ${doc}/changelog ${doc}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)
