# Installs the linguistic engine for other programs: libraries, headers and a CMake package.
include(CMakePackageConfigHelpers)

set(LEXIFORM_MODELS_PATH ${CMAKE_INSTALL_DATADIR}/lexiform/models)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Lexiform)

set_target_properties(lexiform_linguistics PROPERTIES EXPORT_NAME linguistics)
set_target_properties(lexiform_base PROPERTIES EXPORT_NAME base)
set_target_properties(lexiform_cld2 PROPERTIES EXPORT_NAME cld2)
install(TARGETS lexiform_linguistics lexiform_base lexiform_cld2 EXPORT LexiformTargets
  ARCHIVE COMPONENT development)
install(EXPORT LexiformTargets NAMESPACE Lexiform:: DESTINATION ${package_folder} COMPONENT development)

# The headers that a program includes, and those that they include.
set(headers base/Outcome.h base/TextRange.h base/fatalError.h
  linguistics/Analyser.h linguistics/Engine.h linguistics/file/ModelFault.h linguistics/model/ModelStore.h
  linguistics/text/Analysis.h linguistics/text/UniversalPos.h)
foreach(header ${headers})
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/lexiform/${folder} COMPONENT development)
endforeach()

configure_package_config_file(cmake/LexiformConfig.cmake.in ${CMAKE_BINARY_DIR}/LexiformConfig.cmake
  INSTALL_DESTINATION ${package_folder} PATH_VARS LEXIFORM_MODELS_PATH)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/LexiformConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/LexiformConfig.cmake ${CMAKE_BINARY_DIR}/LexiformConfigVersion.cmake
  DESTINATION ${package_folder} COMPONENT development)
