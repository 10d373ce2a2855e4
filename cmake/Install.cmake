# Components: runtime (the shared library), development (headers, static or import library, package files), tools.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Herald)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(
  TARGETS herald
  EXPORT HeraldTargets
  RUNTIME COMPONENT runtime
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development
)
install(EXPORT HeraldTargets NAMESPACE Herald:: DESTINATION ${package_dir} COMPONENT development)

configure_package_config_file(
  cmake/HeraldConfig.cmake.in ${PROJECT_BINARY_DIR}/HeraldConfig.cmake INSTALL_DESTINATION ${package_dir}
)
# Before version 1.0.0 each minor version may break its users.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/HeraldConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(
  FILES ${PROJECT_BINARY_DIR}/HeraldConfig.cmake ${PROJECT_BINARY_DIR}/HeraldConfigVersion.cmake
  DESTINATION ${package_dir}
  COMPONENT development
)

# The prefix is told from where the file lies, so that an installed tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE up)
if(NOT BUILD_SHARED_LIBS)
  set(static_definition " -DHERALD_STATIC")
  if(CMAKE_THREAD_LIBS_INIT)
    set(static_libraries " ${CMAKE_THREAD_LIBS_INIT}")
  endif()
endif()
configure_file(cmake/herald.pc.in ${PROJECT_BINARY_DIR}/herald.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/herald.pc DESTINATION ${pkgconfig_dir} COMPONENT development)
