# What a build for Windows needs beside the common parts: the compiler's own libraries stand beside
# the programs.
set(KORVANE_RUNTIME)
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE place OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT EXISTS ${place})
    find_file(place_${library} ${library} PATHS ${CMAKE_FIND_ROOT_PATH}/lib ${CMAKE_FIND_ROOT_PATH}/bin
      NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    set(place ${place_${library}})
  endif()
  file(COPY ${place} DESTINATION ${CMAKE_BINARY_DIR})
  list(APPEND KORVANE_RUNTIME ${place})
endforeach()
