# What an operation takes in instructions and allocations, compared with bench/baseline.txt. Counts
# are those of one compiler's release build.
find_program(ORTHOLAN_VALGRIND valgrind)
find_path(ORTHOLAN_VALGRIND_INCLUDE valgrind/callgrind.h)
mark_as_advanced(ORTHOLAN_VALGRIND ORTHOLAN_VALGRIND_INCLUDE)
if(NOT ORTHOLAN_VALGRIND OR NOT ORTHOLAN_VALGRIND_INCLUDE)
  message(STATUS "bench: valgrind is not installed, nothing is counted")
  return()
endif()

ortholan_bench_program(counted counted.cpp chains.cpp extension_list.cpp names.cpp allocations.cpp)
target_include_directories(counted SYSTEM PRIVATE "${ORTHOLAN_VALGRIND_INCLUDE}")

set(arguments
  "$<TARGET_FILE:counted>"
  "${CMAKE_CURRENT_SOURCE_DIR}/baseline.txt"
  "${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION} ${CMAKE_SYSTEM_PROCESSOR} ${CMAKE_BUILD_TYPE}")
set(script "${PROJECT_SOURCE_DIR}/scripts/bench_counts.sh")
add_custom_target(bench-check
  COMMAND "${script}" check ${arguments} DEPENDS counted USES_TERMINAL VERBATIM)
add_custom_target(bench-baseline
  COMMAND "${script}" write ${arguments} DEPENDS counted USES_TERMINAL VERBATIM)

if(ORTHOLAN_BUILD_TESTS)
  add_test(NAME bench_check COMMAND "${script}" check ${arguments})
  set_tests_properties(bench_check PROPERTIES TIMEOUT 600 SKIP_RETURN_CODE 77)
endif()
