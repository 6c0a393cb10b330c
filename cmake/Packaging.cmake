include(CMakePackageConfigHelpers)

set(TVPOLICY_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/tvpolicy")
install(EXPORT tvpolicyTargets NAMESPACE tvpolicy:: DESTINATION "${TVPOLICY_CMAKE_DIR}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/tvpolicyConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/tvpolicyConfig.cmake" INSTALL_DESTINATION "${TVPOLICY_CMAKE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tvpolicyConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/tvpolicyConfig.cmake"
  "${PROJECT_BINARY_DIR}/tvpolicyConfigVersion.cmake" DESTINATION "${TVPOLICY_CMAKE_DIR}")

# The prefix is found from the file's own folder, however deep the library folder is
# (lib, lib64, lib/x86_64-linux-gnu), so an installed tree can be moved.
file(RELATIVE_PATH TVPOLICY_PC_TO_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file("${PROJECT_SOURCE_DIR}/cmake/tvpolicy.pc.in" "${PROJECT_BINARY_DIR}/tvpolicy.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/tvpolicy.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# The example policies, where a packaged program finds them (/usr/share/doc/tvpolicy/examples).
file(GLOB _examples CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.xml")
install(FILES ${_examples} DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples")
