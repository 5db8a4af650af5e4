# The Debian package, made by CPack from the install rules (scripts/package).
# Its library dependencies come from dpkg-shlibdeps; the SQLite driver is a
# plugin that no linker sees, so it is named by hand.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vorlan)
set(CPACK_PACKAGE_VENDOR "The Vorlan developers")
set(CPACK_PACKAGE_CONTACT "The Vorlan developers <vorlan@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "browsing tool for the GeoCities free home-page service")
set(CPACK_PACKAGE_DESCRIPTION
    "Vorlan picks or steps through the addresses of GeoCities home pages\n"
    "(Neighborhood, Suburb, house number), shows the pages in its own browser\n"
    "window, saves the good ones with a note, and can wander by itself.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.example.org/vorlan/")
set(CPACK_STRIP_FILES ON)
include(CPack)
