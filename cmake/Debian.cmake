# `cpack -G DEB` in the build folder makes the Debian package of the programs and their models.
# tools/build-deb.sh does all of it; why so is in docs/decisions/0014-a-package-by-cpack.md.

set(CPACK_PACKAGE_NAME lexiform)
set(CPACK_PACKAGE_VENDOR "The Lexiform developers")
set(CPACK_PACKAGE_CONTACT "The Lexiform developers <lexiform@lexiform.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "colours every word of a text by its lexical class")
set(CPACK_PACKAGE_DESCRIPTION
"Lexiform reads a text and shows its language: every word in the colour of its
lexical class beside a colour key, views by script, language, token type and
lemma, and the words of each class listed and counted. It reads plain text,
RTF, HTML, OpenDocument, Word and EPUB files, has models of nineteen languages
and tells more than eighty apart. Texts are analysed on the machine itself.
.
The command line lexiform-cli does the same for texts of any length.")
set(CPACK_PACKAGE_HOMEPAGE_URL https://lexiform.example/)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

# One package of what a user needs; the engine as a library is for those who build.
set(CPACK_COMPONENTS_ALL application models)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)

# Whatever the umask of who builds it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME lexiform)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# What is loaded at run time, where it is of use: Wayland, a GTK desktop's settings, the dialogs' texts in other
# languages, letters of most scripts.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "qt6-wayland, qt6-gtk-platformtheme, qt6-translations-l10n, fonts-noto-core")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk, fonts-noto-color-emoji")

# Given to the script that completes the files, which runs as part of cpack and knows nothing of the build.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake)
# cpack would build everything first.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CPACK_LEXIFORM_SOURCE ${PROJECT_SOURCE_DIR})
include(CPack)
