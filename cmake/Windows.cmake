# What a build for Windows needs beside the common parts.

# One folder holds everything.
set(KORVANE_SHARE_FROM_BIN ".")
set(KORVANE_DATA_FROM_BIN "data")

# The compiler's own libraries stand beside the programs.
set(KORVANE_RUNTIME)
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE place OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT EXISTS ${place})
    find_file(place_${library} ${library} PATHS ${CMAKE_FIND_ROOT_PATH}/lib
      ${CMAKE_FIND_ROOT_PATH}/bin NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    set(place ${place_${library}})
  endif()
  file(COPY ${place} DESTINATION ${CMAKE_BINARY_DIR})
  list(APPEND KORVANE_RUNTIME ${place})
endforeach()

# korvane_resources(PROGRAM WORDS): what Windows reads out of the program's file: icons, version,
# and the manifest, which asks for UTF-8, long paths and sharp letters.
enable_language(RC)
set(KORVANE_PACKAGING ${CMAKE_SOURCE_DIR}/packaging/windows)
function(korvane_resources program words)
  string(REPLACE "." "," KORVANE_VERSION_NUMBERS ${PROJECT_VERSION})
  set(KORVANE_PROGRAM_FILE ${program}.exe)
  set(KORVANE_PROGRAM_WORDS ${words})
  configure_file(${KORVANE_PACKAGING}/program.rc.in ${CMAKE_BINARY_DIR}/${program}.rc @ONLY)
  target_sources(${program} PRIVATE ${CMAKE_BINARY_DIR}/${program}.rc)
  set_source_files_properties(${CMAKE_BINARY_DIR}/${program}.rc PROPERTIES OBJECT_DEPENDS
    "${KORVANE_PACKAGING}/korvane.manifest;${KORVANE_PACKAGING}/korvane.ico;${KORVANE_PACKAGING}/project.ico")
endfunction()
