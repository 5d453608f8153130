# Debian packages of what cmake/Install.cmake installs: "cpack" in the build folder makes them, one a component.
#
# The version is the project's; which shared libraries a package needs is read from its programs. SOURCE_DATE_EPOCH,
# where it is set, is the time of every file in them.

set(DYEWORKS_PACKAGE_CONTACT "The Orrery Dyeworks contributors <contributors@orrery-dyeworks.invalid>" CACHE STRING
  "Who answers for the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL editor cli sdk)
set(CPACK_PACKAGE_NAME orrery-dyeworks)
set(CPACK_PACKAGE_CONTACT "${DYEWORKS_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_DEBIAN_EDITOR_PACKAGE_NAME orrery-dyeworks)
set(CPACK_DEBIAN_EDITOR_PACKAGE_SECTION graphics)
# Of what Qt loads when it runs, and of the desktop.
set(CPACK_DEBIAN_EDITOR_PACKAGE_DEPENDS hicolor-icon-theme)
set(CPACK_DEBIAN_EDITOR_PACKAGE_RECOMMENDS
  "qt6-translations-l10n, qt6-wayland, shared-mime-info, desktop-file-utils, xdg-utils")
set(CPACK_DEBIAN_EDITOR_PACKAGE_SUGGESTS "fonts-noto-cjk, orrery-dyeworks-dev")
set(CPACK_COMPONENT_EDITOR_DESCRIPTION
  "Orrery Dyeworks edits the textures of game consoles as the hardware keeps
them: images of 16 or 256 colours whose texels are numbers, and palettes of
16-bit entries that give those numbers their colours.
.
Image and palette are files of their own, so one image can wear many palettes
and one palette can dress many images. A user guide comes along, and the
program speaks English and Japanese.")

set(CPACK_DEBIAN_CLI_PACKAGE_NAME orrery-dyeworks-cli)
set(CPACK_DEBIAN_CLI_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_CLI_PACKAGE_SUGGESTS orrery-dyeworks)
set(CPACK_COMPONENT_CLI_DESCRIPTION
  "dyeworks-cli does what a build or a script asks of the textures of game
consoles: tells what files hold, converts between TMF, PNG, BMP, C source and
raw bytes, reads JPEG, makes the pictures of a project as far as they have changed, and
works on palettes with the images that show them.
.
It needs no display and speaks English and Japanese.")

set(CPACK_DEBIAN_SDK_PACKAGE_NAME orrery-dyeworks-dev)
set(CPACK_DEBIAN_SDK_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_SDK_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_SDK_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_SDK_PACKAGE_RECOMMENDS "cmake, orrery-dyeworks, orrery-dyeworks-cli")
set(CPACK_COMPONENT_SDK_DESCRIPTION
  "Headers, a package for CMake, a plug-in to start from and a guide for authors
of plug-ins of Orrery Dyeworks, an editor for colour-indexed console textures.
.
The package for CMake also takes the textures of a project into a build, which
dyeworks-cli writes.")

# What packages have besides, see there.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/complete-packages.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/finish-packages.cmake")
set(CPACK_DYEWORKS_SOURCE "${PROJECT_SOURCE_DIR}")
include(CPack)
