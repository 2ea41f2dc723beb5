# SPDX-License-Identifier: BSD-3-Clause
# What is installed where, and the Debian package. The program finds its libraries, the reading
# program, samples and help from where it stands, so that the installed tree can be moved.

set_target_properties(corvala PROPERTIES INSTALL_RPATH "$ORIGIN/../lib/corvala")
set_target_properties(cvsdk cvzonestyle PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS corvala RUNTIME DESTINATION bin)
install(TARGETS cvsdk cvzonestyle LIBRARY DESTINATION lib/corvala)
install(TARGETS corvala-read RUNTIME DESTINATION libexec/corvala)

install(DIRECTORY help/ DESTINATION share/corvala/help FILES_MATCHING PATTERN "*.html")
install(DIRECTORY samples/data/ DESTINATION share/corvala/samples)
install(FILES packaging/corvala.desktop DESTINATION share/applications)
install(FILES packaging/corvala.metainfo.xml DESTINATION share/metainfo
  RENAME org.corvala.corvala.metainfo.xml)
install(FILES packaging/corvala.xml DESTINATION share/mime/packages)
install(FILES packaging/corvala.1 DESTINATION share/man/man1)
install(FILES app/icons/corvala.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES packaging/copyright LICENSES/BSD-3-Clause.txt LICENSES/GPL-3.0-or-later.txt
  DESTINATION share/doc/corvala)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvala)
set(CPACK_PACKAGE_VENDOR "The Corvala developers")
set(CPACK_PACKAGE_CONTACT "The Corvala developers <corvala@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plot field data and edit the style of their zones")
set(CPACK_PACKAGE_DESCRIPTION
  "Draws field plots of many zones, XY and polar line plots, and edits the style of every zone or line in tables.\nReads VTK, CGNS, EnSight, Exodus, OpenFOAM and Plot3D data, surfaces and tables of text; writes PNG, PDF and SVG.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Libraries are found by what the files link; Qt loads its plugin for SVG icons by itself.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt5svg5")
# Pictures without a screen, and Qt's own texts in other languages.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xvfb, qttranslations5-l10n")
include(CPack)
