# Installs the programs and models into a folder of their own, looks for what a user needs, and runs the command line
# from there in an empty environment.
set(prefix ${BUILD}/install-programs-test)
file(REMOVE_RECURSE ${prefix})

foreach(component application models)
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix} --component ${component}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()

foreach(file ${FILES})
  if(NOT EXISTS ${prefix}/${file})
    message(SEND_ERROR "There is no ${file} in the installation.")
  endif()
endforeach()
if(EXISTS ${prefix}/include)
  message(SEND_ERROR "Headers come with the programs.")
endif()

file(WRITE ${prefix}/letter.txt "She sings.\n\nDer Hund schläft heute im Garten.\n")
execute_process(COMMAND env -i ${prefix}/bin/lexiform-cli tag --format tsv ${prefix}/letter.txt
  OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
foreach(line "sings\t[^\n]*\tVERB\t[^\n]*\ten\t" "Hund\t[^\n]*\tNOUN\t[^\n]*\tde\t")
  if(NOT table MATCHES "${line}")
    message(SEND_ERROR "No line of this table matches ${line}:\n${table}")
  endif()
endforeach()
file(REMOVE_RECURSE ${prefix})
