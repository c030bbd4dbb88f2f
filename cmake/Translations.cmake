# Compiles the translations of the interface into the folder that programs look for them in, beside the models.
# tools/update_translations.sh brings their sources up to date with the texts of the program.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

file(GLOB translation_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/translations/*.ts)
set(translations)
foreach(source ${translation_sources})
  cmake_path(GET source STEM name)
  set(translation ${CMAKE_BINARY_DIR}/share/lexiform/translations/${name}.qm)
  add_custom_command(OUTPUT ${translation} DEPENDS ${source}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/share/lexiform/translations
    COMMAND Qt6::lrelease -silent ${source} -qm ${translation} VERBATIM)
  list(APPEND translations ${translation})
endforeach()
add_custom_target(translations ALL DEPENDS ${translations})
install(FILES ${translations} DESTINATION ${CMAKE_INSTALL_DATADIR}/lexiform/translations COMPONENT application)
