# Lays the models, with the table that tells languages apart, and the samples out under the build folder as an
# installation has them, so that a program finds them beside itself: bin/../share/lexiform.
include(GNUInstallDirs)

file(GLOB models CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/models/*.lxm
  ${PROJECT_SOURCE_DIR}/resources/models/*.lxi)
file(GLOB samples CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/samples/*.txt)
file(COPY ${models} DESTINATION ${CMAKE_BINARY_DIR}/share/lexiform/models)
file(COPY ${samples} DESTINATION ${CMAKE_BINARY_DIR}/share/lexiform/samples)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${models} ${samples})
install(FILES ${models} DESTINATION ${CMAKE_INSTALL_DATADIR}/lexiform/models COMPONENT models)
install(FILES ${samples} DESTINATION ${CMAKE_INSTALL_DATADIR}/lexiform/samples COMPONENT application)
