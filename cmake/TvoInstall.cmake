# What an installation holds: the two libraries, all public headers flat in one folder, a CMake package and a pkg-config
# file. It can be moved as a whole; nothing in it refers to the source or build folder.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/${PROJECT_NAME})
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})

get_property(box_includes GLOBAL PROPERTY TVO_BOX_INCLUDES)
get_property(generated_headers GLOBAL PROPERTY TVO_GENERATED_HEADERS)
set(public_headers ${generated_headers})
foreach(folder IN LISTS box_includes)
  file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
  list(APPEND public_headers ${headers})
endforeach()

# One folder for all of them, so two of the same name would hide each other.
set(names "")
foreach(header IN LISTS public_headers)
  cmake_path(GET header FILENAME name)
  if(name IN_LIST names)
    message(FATAL_ERROR "Two public headers are named ${name}; the second one is ${header}")
  endif()
  list(APPEND names ${name})
endforeach()

set_target_properties(KRVTVOFoundation PROPERTIES EXPORT_NAME Foundation)
set_target_properties(KRVTVOOdbAttrEO PROPERTIES EXPORT_NAME OdbAttrEO)
foreach(library KRVTVOFoundation KRVTVOOdbAttrEO)
  target_compile_features(${library} PUBLIC cxx_std_20)
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${header_folder}>)
  # The two libraries lie in one folder and find each other there.
  set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
endforeach()

install(TARGETS KRVTVOFoundation KRVTVOOdbAttrEO EXPORT ${PROJECT_NAME}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${public_headers} DESTINATION ${header_folder})

install(EXPORT ${PROJECT_NAME} FILE ${PROJECT_NAME}Config.cmake NAMESPACE KRVTVO:: DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake DESTINATION ${package_folder})

file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
configure_file(${CMAKE_CURRENT_LIST_DIR}/${PROJECT_NAME}.pc.in ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
