# Makes what users get harder to exploit: addresses that cannot be known beforehand, tables of the linker that
# cannot be written to, and checks of stack frames and of the C library's buffers. Sanitizers check more, and
# unoptimised builds cannot check buffers.
set(LEXIFORM_HARDENED OFF)
if(CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT LEXIFORM_SANITIZE AND NOT LEXIFORM_COVERAGE)
  set(LEXIFORM_HARDENED ON)
  # Code over Qt is compiled as that of a shared library, which includes this.
  add_compile_options($<$<NOT:$<BOOL:$<TARGET_PROPERTY:POSITION_INDEPENDENT_CODE>>>:-fPIE>)
  add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_link_options(-pie LINKER:-z,relro LINKER:-z,now)
endif()
