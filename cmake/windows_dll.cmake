# The DLL: entry point, version resource, string table and the system libraries it calls.
target_sources(ortholan PRIVATE platform/windows/dll_main.cpp platform/windows/ortholan.rc)
set_target_properties(ortholan PROPERTIES PREFIX "")
target_link_libraries(ortholan PRIVATE crypt32 user32)
target_link_libraries(ortholan_static PUBLIC crypt32 user32)

# The resource compiler reports no dependencies of its own.
file(GLOB ORTHOLAN_RESOURCE_INPUTS CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/platform/*.inc")
set_source_files_properties(platform/windows/ortholan.rc PROPERTIES
  OBJECT_DEPENDS
    "${ORTHOLAN_RESOURCE_INPUTS};${PROJECT_BINARY_DIR}/include/ortholan/version.h")

# The names of the C interface, from which other compilers' tools make an import library.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/abi/windows.txt")
file(STRINGS "${PROJECT_SOURCE_DIR}/abi/windows.txt" names REGEX "^ortholan_")
list(JOIN names "\n  " names)
set(ORTHOLAN_C_DEFINITIONS "${PROJECT_BINARY_DIR}/ortholan_c.def")
file(GENERATE OUTPUT "${ORTHOLAN_C_DEFINITIONS}"
  CONTENT "LIBRARY ortholan.dll\nEXPORTS\n  ${names}\n")

# The same as an import library in the form that Visual C++'s own tools write and read.
find_program(ORTHOLAN_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
if(MINGW AND ORTHOLAN_LLVM_DLLTOOL)
  set(ORTHOLAN_C_LIBRARY "${PROJECT_BINARY_DIR}/ortholan.lib")
  add_custom_command(OUTPUT "${ORTHOLAN_C_LIBRARY}"
    COMMAND "${ORTHOLAN_LLVM_DLLTOOL}" -m i386:x86-64
      -d "${ORTHOLAN_C_DEFINITIONS}" -l "${ORTHOLAN_C_LIBRARY}"
    DEPENDS "${ORTHOLAN_C_DEFINITIONS}"
    VERBATIM)
  add_custom_target(ortholan_c_library ALL DEPENDS "${ORTHOLAN_C_LIBRARY}")
  add_dependencies(ortholan ortholan_c_library)
endif()

if(ORTHOLAN_TOP_LEVEL AND MINGW)
  ortholan_copy_runtime_dlls("${PROJECT_BINARY_DIR}")
endif()
