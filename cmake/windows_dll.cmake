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

# g++ exports what its attributes mark, but no member that is defined in its class. All members of the
# list of extensions are exported, the others by their names in the object.
if(MINGW)
  set_source_files_properties(extensions/cert_extension_list.cpp PROPERTIES
    SKIP_UNITY_BUILD_INCLUSION ON)
  set(ORTHOLAN_LIST_OBJECT
    "$<FILTER:$<TARGET_OBJECTS:ortholan_objects>,INCLUDE,cert_extension_list>")
  set(ORTHOLAN_LIST_MEMBERS "${PROJECT_BINARY_DIR}/list_members.def")
  add_custom_command(OUTPUT "${ORTHOLAN_LIST_MEMBERS}"
    COMMAND "${CMAKE_COMMAND}" "-DNM=${CMAKE_NM}" "-DOBJECT=${ORTHOLAN_LIST_OBJECT}"
      "-DOUTPUT=${ORTHOLAN_LIST_MEMBERS}" -P "${PROJECT_SOURCE_DIR}/cmake/list_members.cmake"
    DEPENDS "${ORTHOLAN_LIST_OBJECT}" "${PROJECT_SOURCE_DIR}/cmake/list_members.cmake"
    VERBATIM)
  target_sources(ortholan PRIVATE "${ORTHOLAN_LIST_MEMBERS}")
endif()

# The names of the C interface, from which other compilers' tools make an import library.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/packaging/abi/windows.txt")
file(STRINGS "${PROJECT_SOURCE_DIR}/packaging/abi/windows.txt" names REGEX "^ortholan_")
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
