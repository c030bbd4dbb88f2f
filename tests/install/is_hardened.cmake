# Fails when PROGRAM lacks one of the protections of cmake/Hardening.cmake.
execute_process(COMMAND readelf -W --file-header --program-headers --dynamic --dyn-syms ${PROGRAM}
  OUTPUT_VARIABLE description COMMAND_ERROR_IS_FATAL ANY)

# `protected(WHAT EXPRESSION)`: what readelf says of a program that is.
function(protected what expression)
  if(NOT description MATCHES "${expression}")
    message(SEND_ERROR "${PROGRAM} has no ${what}")
  endif()
endfunction()

protected("addresses of its own at every start" "Type: +DYN")
protected("addresses of its own at every start" "FLAGS_1[^\n]* PIE")
protected("read-only tables" "GNU_RELRO")
protected("tables that are complete before it starts" "FLAGS_1[^\n]* NOW")
protected("stack that is no code" "GNU_STACK[^\n]* RW ")
protected("guarded stack frames" "__stack_chk_fail")
protected("checked buffers" "__[a-z]+_chk")
