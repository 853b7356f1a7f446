# Cross-builds for 64-bit Windows by clang++, with MinGW-w64's headers, its linker and g++'s
# standard library: a second compiler's opinion of the Windows sources.
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64-toolchain.cmake")

# The directory of the standard library, which clang++ does not find by its version's name.
execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-libgcc-file-name
  OUTPUT_VARIABLE gcc_directory OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(gcc_directory "${gcc_directory}" DIRECTORY)
set(gcc_headers "${gcc_directory}/include/c++")

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(common "--sysroot=/usr/x86_64-w64-mingw32 -B${gcc_directory}")
set(CMAKE_C_FLAGS_INIT "${common}")
set(CMAKE_CXX_FLAGS_INIT
  "${common} -stdlib++-isystem ${gcc_headers} -cxx-isystem ${gcc_headers}/x86_64-w64-mingw32")
# g++'s standard library is that with POSIX threads.
foreach(kind IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-L${gcc_directory} -pthread")
endforeach()
