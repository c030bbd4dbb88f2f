# The manual: LexiformHelp.pdf beside the models and samples, made from resources/manual. Without its
# tools the application is built without it, and its help window stays empty.
set(manual_source ${PROJECT_SOURCE_DIR}/resources/manual)
set(LEXIFORM_MANUAL ${CMAKE_BINARY_DIR}/share/lexiform/LexiformHelp.pdf)
set(LEXIFORM_MANUAL_LINKS ${CMAKE_BINARY_DIR}/share/lexiform/LexiformHelp.links)

# The packages serve Debian's own Python, which need not be the first one in the path.
find_program(LEXIFORM_MANUAL_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(LEXIFORM_MANUAL_PYTHON python3)
set(manual_missing)
foreach(module weasyprint markdown)
  set(imported 1)
  if(LEXIFORM_MANUAL_PYTHON)
    execute_process(COMMAND ${LEXIFORM_MANUAL_PYTHON} -c "import ${module}"
      RESULT_VARIABLE imported OUTPUT_QUIET ERROR_QUIET)
  endif()
  if(NOT imported EQUAL 0)
    string(REPLACE markdown python3-markdown package ${module})
    list(APPEND manual_missing ${package})
  endif()
endforeach()

if(manual_missing)
  string(REPLACE ";" ", " manual_missing "${manual_missing}")
  message(STATUS "The manual is not built and the help window will be empty; missing packages: ${manual_missing}")
else()
  file(GLOB manual_files CONFIGURE_DEPENDS ${manual_source}/* ${manual_source}/chapters/* ${manual_source}/pictures/*)
  list(FILTER manual_files INCLUDE REGEX "\\.(md|tsv|css|png)$")
  # A fixed seed of hashes and a fixed date: the same sources give the same bytes.
  add_custom_command(OUTPUT ${LEXIFORM_MANUAL} ${LEXIFORM_MANUAL_LINKS}
    COMMAND ${CMAKE_COMMAND} -E env PYTHONHASHSEED=0 PYTHONDONTWRITEBYTECODE=1 SOURCE_DATE_EPOCH=0
      ${LEXIFORM_MANUAL_PYTHON} ${PROJECT_SOURCE_DIR}/tools/manual/build_manual.py
      ${manual_source} ${PROJECT_SOURCE_DIR}/resources/models/README.md ${PROJECT_VERSION} ${LEXIFORM_MANUAL}
    DEPENDS ${manual_files} ${PROJECT_SOURCE_DIR}/tools/manual/build_manual.py
      ${PROJECT_SOURCE_DIR}/tools/manual/tables.py ${PROJECT_SOURCE_DIR}/resources/models/README.md
      ${PROJECT_SOURCE_DIR}/resources/icons/lexiform.svg
    COMMENT "Making the manual" VERBATIM)
  add_custom_target(manual ALL DEPENDS ${LEXIFORM_MANUAL})
  install(FILES ${LEXIFORM_MANUAL} ${LEXIFORM_MANUAL_LINKS} DESTINATION ${CMAKE_INSTALL_DATADIR}/lexiform
    COMPONENT application OPTIONAL)
endif()
