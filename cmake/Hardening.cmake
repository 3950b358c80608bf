# What a program that opens strangers' files is linked and checked with. Only releases: the checked
# routines of the C library need an optimiser, and the sanitizers bring checks of their own.
# For Windows the compiler's own settings hold: it has no such link options, and its checked
# routines want a library more.
if(WIN32)
  return()
endif()
add_compile_options($<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
add_link_options($<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
