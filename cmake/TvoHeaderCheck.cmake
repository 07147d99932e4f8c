# header_check: every public header compiles by itself, and included twice. Built on demand.
set(sources "")
foreach(header IN LISTS public_headers)
  cmake_path(GET header FILENAME name)
  set(source ${PROJECT_BINARY_DIR}/header_check/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${name}\"\n#include \"${name}\"\n" @ONLY)
  list(APPEND sources ${source})
endforeach()

add_library(header_check OBJECT EXCLUDE_FROM_ALL ${sources})
target_link_libraries(header_check PRIVATE KRVTVOOdbAttrEO tvo_warnings)
# Only the front end's word is wanted.
target_compile_options(header_check PRIVATE -O0)
