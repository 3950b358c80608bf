# The warnings of the project. They are errors in the presets and in the tests' run, not for
# everybody: another compiler may see more.
option(KORVANE_WERROR "Warnings are errors" OFF)
add_library(korvane_warnings INTERFACE)
target_compile_options(korvane_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> $<$<BOOL:${KORVANE_WERROR}>:-Werror>)
# The branches that a sanitizer puts in make this one see null pointers that are none.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  target_compile_options(korvane_warnings INTERFACE -Wnull-dereference)
endif()
