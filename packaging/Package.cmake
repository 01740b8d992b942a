# The Debian package; scripts/build-package makes it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lodestar-advisor)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Lodestar Advisor authors")
set(CPACK_PACKAGE_CONTACT "The Lodestar Advisor authors <authors@lodestar-advisor.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reader, editor and advisor for hypertext books")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Below 1, so that a package by the distribution itself counts as newer.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0.1)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.lodestar-advisor.example/)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Lodestar Advisor reads and writes books: plain text files that hold titled
topics, with cross references between them and, where the author wrote
rules, an advisor that asks the reader a few questions and answers with a
piece of advice.
.
The package holds the desktop program, its companion lsbook for the command
line, and the user's guide, which is such a book itself.")
# The libraries are read from the programs. The typeface is the one that topics are laid out for.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation | ttf-mscorefonts-installer")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
include(CPack)
