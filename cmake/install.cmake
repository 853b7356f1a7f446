# Installation and the package configuration behind find_package(Ortholan).
include(CMakePackageConfigHelpers)

set(ORTHOLAN_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Ortholan")

install(TARGETS ortholan ortholan_static EXPORT OrtholanTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/ortholan"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" FILES_MATCHING PATTERN "*.h")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
if(WIN32)
  ortholan_find_runtime_dlls(ORTHOLAN_RUNTIME_DLLS)
  install(FILES ${ORTHOLAN_RUNTIME_DLLS} DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(FILES "${ORTHOLAN_C_DEFINITIONS}" DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endif()

install(EXPORT OrtholanTargets NAMESPACE Ortholan:: DESTINATION "${ORTHOLAN_CMAKE_DIR}")
configure_package_config_file(cmake/OrtholanConfig.cmake.in
  "${PROJECT_BINARY_DIR}/OrtholanConfig.cmake"
  INSTALL_DESTINATION "${ORTHOLAN_CMAKE_DIR}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrtholanConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/OrtholanConfig.cmake"
  "${PROJECT_BINARY_DIR}/OrtholanConfigVersion.cmake"
  DESTINATION "${ORTHOLAN_CMAKE_DIR}")
