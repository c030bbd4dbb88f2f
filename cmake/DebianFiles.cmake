# Completes the installed files before cpack packs them, as Debian wants them: the copyright, both changelogs, and
# everything there and every manual page compressed without time stamps.

# The one folder of the components that share the package.
file(GLOB prefix ${CPACK_TEMPORARY_DIRECTORY}/*${CPACK_PACKAGING_INSTALL_PREFIX})
list(LENGTH prefix folders)
if(NOT folders EQUAL 1)
  message(FATAL_ERROR "There is not one folder of installed files below ${CPACK_TEMPORARY_DIRECTORY}: ${prefix}")
endif()
set(documents ${prefix}/share/doc/lexiform)

function(compress)
  foreach(file ${ARGN})
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endfunction()

configure_file(${CPACK_LEXIFORM_SOURCE}/resources/bundle/copyright ${documents}/copyright COPYONLY)
configure_file(${CPACK_LEXIFORM_SOURCE}/CHANGELOG.md ${documents}/changelog COPYONLY)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${documents}/changelog.Debian
"lexiform (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * The changes of this version are in changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
file(GLOB pages ${prefix}/share/man/man1/*.1)
compress(${pages} ${documents}/changelog ${documents}/changelog.Debian)
