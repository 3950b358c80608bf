# The warnings of the project, errors all.
add_library(korvane_warnings INTERFACE)
target_compile_options(korvane_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> -Werror)
# The branches that a sanitizer puts in make this one see null pointers that are none.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  target_compile_options(korvane_warnings INTERFACE -Wnull-dereference)
endif()
