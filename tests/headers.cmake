# Every public header compiled as the only thing a source includes and in C++17, once, and all
# together in C++20 behind what gets in the way elsewhere: on Windows the system's header without
# NOMINMAX, and macros called min and max everywhere. A header that fails stops the build.
file(GLOB headers CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}/include"
  "${PROJECT_SOURCE_DIR}/include/ortholan/*.h" "${PROJECT_SOURCE_DIR}/include/ortholan/*.hpp"
  "${PROJECT_SOURCE_DIR}/include/ortholan/strict/*.h" "${PROJECT_SOURCE_DIR}/include/ortholan/strict/*.hpp")
list(APPEND headers ortholan/version.h)

# Standard headers come first, because theirs is another matter; g++'s undefine the macros.
set(surroundings "#include <algorithm>
#include <functional>
#include <iterator>
#include <list>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>
")
if(WIN32)
  string(APPEND surroundings "#include <windows.h>\n")
endif()
string(APPEND surroundings "#undef min
#undef max
#define min(a, b) ((a) < (b) ? (a) : (b))
#define max(a, b) ((a) > (b) ? (a) : (b))
")

set(alone "")
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER "${header}" name)
  set(include "#include <${header}>\n")
  file(CONFIGURE OUTPUT headers/${name}.cpp CONTENT "@include@" @ONLY)
  list(APPEND alone "${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp")
  string(APPEND surroundings "${include}")
endforeach()
file(CONFIGURE OUTPUT headers/surrounded.cpp CONTENT "@surroundings@" @ONLY)

set(targets headers_surrounded)
add_library(headers_surrounded OBJECT "${CMAKE_CURRENT_BINARY_DIR}/headers/surrounded.cpp")
set_target_properties(headers_surrounded PROPERTIES CXX_STANDARD 20)
if(ORTHOLAN_CHECK_SOURCES)
  list(APPEND targets headers_alone)
  add_library(headers_alone OBJECT ${alone})
  set_target_properties(headers_alone PROPERTIES CXX_STANDARD 17 UNITY_BUILD OFF)
endif()
foreach(target IN LISTS targets)
  target_link_libraries(${target} PRIVATE Ortholan::ortholan)
  target_compile_options(${target} PRIVATE "$<$<NOT:$<BOOL:${MSVC}>>:-O0;-g0>")
  ortholan_warnings(${target})
endforeach()
