# The Debian package: `scripts/package-deb` builds it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tonquill)
set(CPACK_PACKAGE_CONTACT "The Tonquill developers <developers@tonquill.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sketch pad for hand-laid music notation")
set(CPACK_PACKAGE_DESCRIPTION
"Lay notes, rests, clefs, texts, staves, ties, triplets and tablature by hand
on a stack of pages, exactly where you want them, and print them. Nothing is
engraved behind your back.
.
There are two programs: one with files, undo and export to PDF, PNG and SVG,
and the editor alone, which is the companion of a host application with which
it exchanges the document over a local socket.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Fonts for "Arial" and the like, translations of Qt, and what opens a symbols reference file.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n, xdg-utils")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# What a package needs besides the installed tree.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/finish-deb.cmake)
set(CPACK_TONQUILL_SOURCE_DIR ${PROJECT_SOURCE_DIR})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
