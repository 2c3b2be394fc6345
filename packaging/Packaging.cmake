# The Debian package: cpack -G DEB in the build folder makes keelhold_<version>_<arch>.deb.
set(CPACK_PACKAGE_NAME keelhold)
set(CPACK_PACKAGE_VENDOR "Keelhold")
set(CPACK_PACKAGE_CONTACT "Keelhold developers <hello@keelhold.io>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Review and keep the footage a Tesla records to its USB drive")
set(CPACK_PACKAGE_DESCRIPTION
  "Keelhold reads the USB drive a Tesla records its cameras to, strictly read-only, turns its
TeslaCam folder into events explained in plain English, plays every camera of an event
in sync, and keeps chosen events in a Vault folder as SHA-256-verified copies.
It comes with sample footage and a command-line tool, keelhold-cli.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
# Debug info stays in the build tree; the package carries stripped programs.
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://keelhold.io/)
# Libraries the programs link come from dpkg-shlibdeps; what Qt loads at run
# time (QML modules, platform and image plugins) and the files the screens
# use are named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(keelhold_runtime_packages
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtquick-templates qml6-module-qtquick-shapes
  qml6-module-qtqml-workerscript qml6-module-qtqml-models qml6-module-qtmultimedia
  qml6-module-qt-labs-settings
  qt6-qpa-plugins libqt6svg6 adwaita-icon-theme fonts-dejavu-core libgl1-mesa-dri)
list(JOIN keelhold_runtime_packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
# The desktop's own file dialogs, and "Email…" / "Show in Folder"; libsecret,
# which the secret store's library loads at run time to remember a sign-in.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-gtk-platformtheme | qt6-xdgdesktopportal-platformtheme, qt6-wayland, xdg-utils, libsecret-1-0")

include(CPack)
