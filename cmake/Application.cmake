# Installs what belongs to the programs beside themselves: manual pages and, with the desktop application, its icon and
# the files by which a desktop knows it.

# Honours SOURCE_DATE_EPOCH, so that a package can be built again byte by byte.
string(TIMESTAMP LEXIFORM_DATE %Y-%m-%d UTC)
set(MODELS ${CMAKE_INSTALL_FULL_DATADIR}/lexiform/models)
set(bundle ${CMAKE_BINARY_DIR}/bundle)

function(lexiform_install_pages)
  foreach(page ${ARGN})
    configure_file(resources/man/${page}.in ${bundle}/${page} @ONLY)
    install(FILES ${bundle}/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT application)
  endforeach()
endfunction()

function(lexiform_install_icons)
  set(theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES resources/icons/lexiform.svg DESTINATION ${theme}/scalable/apps COMPONENT application)
  # For desktops that draw no SVG.
  foreach(size 48 128 256)
    install(FILES resources/icons/lexiform-${size}.png RENAME lexiform.png
      DESTINATION ${theme}/${size}x${size}/apps COMPONENT application)
  endforeach()
endfunction()

# What a package is made of; the trainer is not.
add_custom_target(programs)
foreach(target lexiform-cli lexiform manual translations)
  if(TARGET ${target})
    add_dependencies(programs ${target})
  endif()
endforeach()

lexiform_install_pages(lexiform-cli.1)
if(LEXIFORM_QT)
  lexiform_install_pages(lexiform.1)
  lexiform_install_icons()
  set(metadata example.lexiform.Lexiform.metainfo.xml)
  configure_file(resources/bundle/${metadata}.in ${bundle}/${metadata} @ONLY)
  install(FILES ${bundle}/${metadata} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT application)
  install(FILES resources/bundle/lexiform.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT application)
endif()
