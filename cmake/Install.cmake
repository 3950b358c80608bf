# What is installed, and the Debian package.
install(TARGETS korvane-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
file(GLOB KORVANE_DATA_FILES ${CMAKE_SOURCE_DIR}/data/*.dat)
install(FILES ${KORVANE_DATA_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/korvane)
file(GLOB KORVANE_EXAMPLES ${CMAKE_SOURCE_DIR}/examples/*.kvn ${CMAKE_SOURCE_DIR}/examples/*.csv)
install(FILES ${KORVANE_EXAMPLES} DESTINATION ${CMAKE_INSTALL_DATADIR}/korvane/examples)
install(FILES packaging/copyright docs/VERIFICATION.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES packaging/lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME korvane)

# Debian wants manual pages and the changelog compressed.
find_program(GZIP gzip REQUIRED)
set(KORVANE_MANUALS korvane-cli.1)
if(TARGET korvane)
  list(APPEND KORVANE_MANUALS korvane.1)
endif()
foreach(manual ${KORVANE_MANUALS})
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${manual}.gz
    COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/docs/man/${manual} > ${CMAKE_BINARY_DIR}/${manual}.gz
    DEPENDS ${CMAKE_SOURCE_DIR}/docs/man/${manual})
  list(APPEND KORVANE_MAN ${CMAKE_BINARY_DIR}/${manual}.gz)
endforeach()
add_custom_target(korvane_man ALL DEPENDS ${KORVANE_MAN})
install(FILES ${KORVANE_MAN} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
set(KORVANE_CHANGELOG ${CMAKE_BINARY_DIR}/changelog.gz)
add_custom_command(OUTPUT ${KORVANE_CHANGELOG}
  COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/packaging/changelog > ${KORVANE_CHANGELOG}
  DEPENDS ${CMAKE_SOURCE_DIR}/packaging/changelog)
add_custom_target(korvane_changelog ALL DEPENDS ${KORVANE_CHANGELOG})
install(FILES ${KORVANE_CHANGELOG} DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(TARGET korvane)
  install(TARGETS korvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY docs/help DESTINATION ${CMAKE_INSTALL_DATADIR}/korvane)
  install(FILES packaging/korvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/korvane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME korvane.xml)
  install(FILES packaging/org.korvane.Korvane.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  include(cmake/Icons.cmake)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME korvane)
set(CPACK_PACKAGE_CONTACT "KORVANE <maintainers@korvane.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design of one steel member to NS 3472")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"KORVANE designs one steel member, a column or a beam, to NS 3472, 3rd
edition: internal forces, section class and capacities, section control,
buckling and lateral torsional buckling control, deflections and natural
frequencies, from a window, a script or a batch.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
  GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
