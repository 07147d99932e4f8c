# cmake -DBUILD=... -DSOURCE=... -DPREFIX=... -P InstallAndCheck.cmake
# Installs afresh and refuses an installation that still refers to the folders it came from.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE installed ${PREFIX}/*)
if(NOT installed)
  message(FATAL_ERROR "Nothing was installed into ${PREFIX}")
endif()
foreach(file IN LISTS installed)
  foreach(folder IN ITEMS ${SOURCE} ${BUILD})
    string(LENGTH ${folder} length)
    file(STRINGS ${file} found REGEX "${folder}" LENGTH_MINIMUM ${length})
    if(found)
      message(FATAL_ERROR "${file} refers to ${folder}: ${found}")
    endif()
  endforeach()
endforeach()
