# The warnings of the project, errors all.
add_library(korvane_warnings INTERFACE)
target_compile_options(korvane_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  -Wnull-dereference -Werror)
