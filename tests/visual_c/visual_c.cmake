# Visual C++'s own compiler and headers are not at hand; what clang can say instead is asked of it.
# With the preset windows-clang all sources are read in Microsoft's dialect, else the headers and what
# is for Windows alone.
find_program(ORTHOLAN_CLANG_CL NAMES clang-cl clang-cl-14)
find_program(ORTHOLAN_LLD_LINK NAMES lld-link lld-link-14)
find_program(ORTHOLAN_CLANG NAMES clang++)
if(NOT MINGW OR NOT ORTHOLAN_CLANG_CL OR NOT ORTHOLAN_LLD_LINK OR NOT ORTHOLAN_CLANG)
  return()
endif()

set(check "${CMAKE_CURRENT_SOURCE_DIR}/visual_c/check.sh")
set(includes "${PROJECT_SOURCE_DIR}/include" "${PROJECT_BINARY_DIR}/include")
add_test(NAME visual_c_headers COMMAND "${check}" headers "${ORTHOLAN_CLANG_CL}" ${includes})
add_test(NAME visual_c_runtime COMMAND "${check}" runtime "${ORTHOLAN_CLANG_CL}"
  "${ORTHOLAN_LLD_LINK}" ${includes})

file(GLOB sources CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/platform/windows/*.cpp"
  "${PROJECT_SOURCE_DIR}/examples/windows/*.cpp"
  "${PROJECT_SOURCE_DIR}/tests/faults/windows/stand_ins.cpp")
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  get_target_property(library ortholan_objects SOURCES)
  list(TRANSFORM library PREPEND "${PROJECT_SOURCE_DIR}/")
  file(GLOB program CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.cpp")
  list(APPEND sources ${library} ${program})
endif()
# Where the standard library's headers are; clang does not find them by their version's name.
find_program(ORTHOLAN_MINGW_GXX x86_64-w64-mingw32-g++-posix)
execute_process(COMMAND "${ORTHOLAN_MINGW_GXX}" -print-libgcc-file-name
  OUTPUT_VARIABLE directory OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(directory "${directory}" DIRECTORY)
add_test(NAME visual_c_sources COMMAND "${check}" sources "${ORTHOLAN_CLANG}" ${sources} --
  --target=x86_64-w64-mingw32 --sysroot=/usr/x86_64-w64-mingw32
  "-stdlib++-isystem" "${directory}/include/c++"
  "-cxx-isystem" "${directory}/include/c++/x86_64-w64-mingw32"
  "-I${PROJECT_SOURCE_DIR}/include" "-I${PROJECT_BINARY_DIR}/include" "-I${PROJECT_SOURCE_DIR}"
  -DORTHOLAN_BUILDING)
set_tests_properties(visual_c_headers visual_c_runtime visual_c_sources PROPERTIES TIMEOUT 600)
