# The icons of the program and of its file type, in the sizes that desktops look for, painted from
# the two drawings by a tool of the build.
set(KORVANE_ICON_SIZES 16 22 24 32 48 64 128 256)
foreach(icon korvane:apps application-x-korvane-project:mimetypes)
  string(REPLACE ":" ";" icon ${icon})
  list(GET icon 0 name)
  list(GET icon 1 context)
  set(drawing ${CMAKE_SOURCE_DIR}/packaging/icons/${name}.svg)
  install(FILES ${drawing}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/${context})
  foreach(size ${KORVANE_ICON_SIZES})
    set(picture ${CMAKE_BINARY_DIR}/icons/${size}/${name}.png)
    add_custom_command(OUTPUT ${picture} COMMAND make_icon ${drawing} ${size} ${picture}
      DEPENDS make_icon ${drawing} VERBATIM)
    list(APPEND KORVANE_ICONS ${picture})
    install(FILES ${picture}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/${context})
  endforeach()
endforeach()
add_custom_target(korvane_icons ALL DEPENDS ${KORVANE_ICONS})
