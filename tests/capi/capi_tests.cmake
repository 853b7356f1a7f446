# The C interface as its users see it: from C and from Python. Its page is tested with the others.
file(GLOB sources CONFIGURE_DEPENDS capi/*.c)
add_executable(capi_tests ${sources})
set_target_properties(capi_tests PROPERTIES
  C_STANDARD 99 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF)
# A C program needs no C++ runtime of its own; the sanitizers' comes with the C++ driver.
if(ORTHOLAN_SANITIZED)
  set_target_properties(capi_tests PROPERTIES LINKER_LANGUAGE CXX)
endif()
target_link_libraries(capi_tests PRIVATE Ortholan::ortholan)
target_include_directories(capi_tests PRIVATE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/include")
ortholan_warnings(capi_tests)
add_test(NAME capi_tests COMMAND capi_tests)
ortholan_test_properties(capi_tests)

# A sanitized library does not load into a program that was built without.
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  ortholan_document_example(text "${PROJECT_SOURCE_DIR}/docs/c-interface.md" python)
  set(example "${CMAKE_CURRENT_BINARY_DIR}/c_interface_example.py")
  file(CONFIGURE OUTPUT "${example}" CONTENT "@text@" @ONLY)
  find_program(ORTHOLAN_PYTHON python3)
  add_test(NAME python_tests
    COMMAND "${ORTHOLAN_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/capi/python_test.py")
  add_test(NAME python_example COMMAND "${ORTHOLAN_PYTHON}" -B "${example}")
  set_tests_properties(python_tests python_example PROPERTIES
    TIMEOUT 600
    ENVIRONMENT
      "ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>;PYTHONPATH=${PROJECT_SOURCE_DIR}/examples/python")
endif()
