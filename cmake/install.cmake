# `cmake --install` and the Debian package.
include(GNUInstallDirs)

install(TARGETS pitchcraft pitchcraft-cli ftcalc RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/pitchcraft)
install(DIRECTORY docs/help/ DESTINATION ${CMAKE_INSTALL_DATADIR}/pitchcraft/help)
install(FILES packaging/pitchcraft.desktop packaging/ftcalc.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/pitchcraft-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME pitchcraft.xml)
install(FILES packaging/pitchcraft.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# Stored in the repository, so that a build needs no program that paints. Made with: rsvg-convert -w 128
# packaging/pitchcraft.svg
install(FILES packaging/pitchcraft-128.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/128x128/apps
  RENAME pitchcraft.png)
install(FILES README.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs PATTERN help EXCLUDE)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pitchcraft)
set(CPACK_PACKAGE_VENDOR Pitchcraft)
set(CPACK_PACKAGE_CONTACT "Pitchcraft maintainers <maintainers@pitchcraft.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
# Dependencies on libraries are found in the programs; that on the fonts is not.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Lengths, cuts and dimensioned drawings of rafters for eleven roofs, with a driver
for scripts and a feet-and-inches calculator. Dimensional calculation only.")
include(CPack)
