# The library as its users have it: installed under a prefix in the build folder, found by the CMake package and by
# pkg-config, used by a small project outside this tree's build.

# A sanitized library asks its users for the sanitizer's flags, which no package file gives.
if(TVO_SANITIZE)
  return()
endif()

set(prefix ${PROJECT_BINARY_DIR}/prefix)
set(consumer ${PROJECT_SOURCE_DIR}/tests/consumer)

add_test(NAME Install.IntoPrefix COMMAND ${CMAKE_COMMAND}
         -DBUILD=${PROJECT_BINARY_DIR} -DSOURCE=${PROJECT_SOURCE_DIR} -DPREFIX=${prefix}
         -P ${PROJECT_SOURCE_DIR}/cmake/InstallAndCheck.cmake)
add_test(NAME Install.FoundAsCMakePackage COMMAND ${CMAKE_CTEST_COMMAND}
         --build-and-test ${consumer} ${PROJECT_BINARY_DIR}/consumer
         --build-generator ${CMAKE_GENERATOR}
         --build-options -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
         --test-command consumer)
add_test(NAME Install.FoundByPkgConfig COMMAND sh ${consumer}/build_with_pkg_config.sh
         ${prefix} ${PROJECT_BINARY_DIR}/consumer_by_pkg_config ${CMAKE_CXX_COMPILER})
set_tests_properties(Install.IntoPrefix PROPERTIES FIXTURES_SETUP installed)
set_tests_properties(Install.FoundAsCMakePackage Install.FoundByPkgConfig PROPERTIES FIXTURES_REQUIRED installed)
