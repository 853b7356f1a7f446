# Installation, and what find_package(Ortholan) and pkg-config find. Nothing installed holds an
# absolute path, so that the tree may be moved.
#
# Components: runtime (what a built program needs), development, program, python, documents.
include(CMakePackageConfigHelpers)

set(ORTHOLAN_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Ortholan")
set(ORTHOLAN_PC_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

install(TARGETS ortholan EXPORT OrtholanTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime
    NAMELINK_COMPONENT development
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
install(TARGETS ortholan_static EXPORT OrtholanTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
if(MINGW)
  ortholan_find_runtime_dlls(ORTHOLAN_RUNTIME_DLLS)
  install(FILES ${ORTHOLAN_RUNTIME_DLLS}
    DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime)
  install(FILES "${ORTHOLAN_C_DEFINITIONS}"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
  if(TARGET ortholan_c_library)
    install(FILES "${ORTHOLAN_C_LIBRARY}"
      DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
  endif()
  ortholan_runtime_licences("${PROJECT_BINARY_DIR}/licences")
  install(DIRECTORY "${PROJECT_BINARY_DIR}/licences"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT runtime)
endif()

install(DIRECTORY
  "${PROJECT_SOURCE_DIR}/include/ortholan" "${PROJECT_BINARY_DIR}/include/ortholan"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
  FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")

if(TARGET x509name)
  install(TARGETS x509name RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT program)
  if(NOT WIN32)
    install(FILES "${PROJECT_SOURCE_DIR}/examples/x509name.1"
      DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT program)
    # bash-completion looks there for a file with the command's name.
    install(FILES "${PROJECT_SOURCE_DIR}/examples/x509name.bash"
      DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME x509name
      COMPONENT program)
    install(FILES "${PROJECT_SOURCE_DIR}/examples/x509name.zsh"
      DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions" RENAME _x509name
      COMPONENT program)
    install(FILES "${PROJECT_SOURCE_DIR}/examples/x509name.fish"
      DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT program)
  endif()
endif()

install(FILES
  "${PROJECT_SOURCE_DIR}/packaging/debug/ortholan.natvis"
  "${PROJECT_SOURCE_DIR}/packaging/debug/ortholan_gdb.py"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/ortholan" COMPONENT development)
# GDB loads by itself what lies beside a library, or below its own data directory under the full
# path of one that came with the system.
if(NOT WIN32)
  set(ORTHOLAN_GDB_DIR "${CMAKE_INSTALL_LIBDIR}")
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(ORTHOLAN_GDB_DIR "${CMAKE_INSTALL_DATADIR}/gdb/auto-load${CMAKE_INSTALL_FULL_LIBDIR}")
  endif()
  install(FILES "${PROJECT_SOURCE_DIR}/packaging/debug/ortholan_gdb.py"
    DESTINATION "${ORTHOLAN_GDB_DIR}"
    RENAME "libortholan.so.${PROJECT_VERSION}-gdb.py"
    COMPONENT development)
endif()

# Python finds the library where the system keeps libraries, or in the package's own directory.
if(NOT WIN32 AND CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(ORTHOLAN_PYTHON_DIR lib/python3/dist-packages)
else()
  set(ORTHOLAN_PYTHON_DIR "${CMAKE_INSTALL_DATADIR}/ortholan/python")
endif()
# A recipe of a package manager may have left the bindings out.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/bindings/python/ortholan"
  DESTINATION "${ORTHOLAN_PYTHON_DIR}" COMPONENT python OPTIONAL
  FILES_MATCHING PATTERN "*.py" PATTERN "py.typed" PATTERN "__pycache__" EXCLUDE)

include(cmake/installed_pages.cmake)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documents)
install(DIRECTORY "${ORTHOLAN_PAGES_DIR}/"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documents)

install(EXPORT OrtholanTargets NAMESPACE Ortholan::
  DESTINATION "${ORTHOLAN_CMAKE_DIR}" COMPONENT development)
configure_package_config_file(cmake/OrtholanConfig.cmake.in
  "${PROJECT_BINARY_DIR}/OrtholanConfig.cmake"
  INSTALL_DESTINATION "${ORTHOLAN_CMAKE_DIR}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrtholanConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/OrtholanConfig.cmake"
  "${PROJECT_BINARY_DIR}/OrtholanConfigVersion.cmake"
  DESTINATION "${ORTHOLAN_CMAKE_DIR}" COMPONENT development)

# The way from the .pc file up to the prefix.
file(RELATIVE_PATH ORTHOLAN_PC_PREFIX "/${ORTHOLAN_PC_DIR}" "/")
string(REGEX REPLACE "/$" "" ORTHOLAN_PC_PREFIX "${ORTHOLAN_PC_PREFIX}")
# ortholan_pc(<file> <library> <cflags> <cflags of --static> <libraries of --static>)
function(ortholan_pc file ORTHOLAN_PC_LIBRARY ORTHOLAN_PC_CFLAGS ORTHOLAN_PC_CFLAGS_PRIVATE
    ORTHOLAN_PC_LIBS_PRIVATE)
  configure_file(cmake/ortholan.pc.in "${PROJECT_BINARY_DIR}/${file}" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${file}"
    DESTINATION "${ORTHOLAN_PC_DIR}" COMPONENT development)
endfunction()
set(system "")
if(WIN32)
  set(system "-lcrypt32 -luser32")
endif()
if(MSVC)
  # The two libraries have two names there, and pkg-config cannot tell them apart by --static.
  ortholan_pc(ortholan.pc ortholan "" "" "")
  ortholan_pc(ortholan-static.pc "ortholan_static ${system}" " -DORTHOLAN_STATIC" "" "")
else()
  ortholan_pc(ortholan.pc ortholan "" " -DORTHOLAN_STATIC" " ${system}")
endif()

# What Visual C++'s debuggers read, where it was asked for.
if(MSVC)
  install(FILES $<TARGET_PDB_FILE:ortholan>
    DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT development OPTIONAL)
endif()
