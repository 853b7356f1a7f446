# The C interface as its users see it, by the rows that the other interfaces are asked too, and from
# Python. Its page is tested with the others, and its programs in C.
ortholan_test_sources(sources capi)
ortholan_test(capi_tests SHARED ${sources} support/vectors.cpp)

# A sanitized library does not load into a program that was built without.
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  ortholan_document_example(text "${PROJECT_SOURCE_DIR}/docs/c-interface.md" python)
  set(example "${CMAKE_CURRENT_BINARY_DIR}/c_interface_example.py")
  file(CONFIGURE OUTPUT "${example}" CONTENT "@text@" @ONLY)
  find_program(ORTHOLAN_PYTHON python3)
  add_test(NAME python_tests
    COMMAND "${ORTHOLAN_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/capi/python_test.py")
  add_test(NAME python_strict_tests
    COMMAND "${ORTHOLAN_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/capi/python_strict_test.py")
  add_test(NAME python_example COMMAND "${ORTHOLAN_PYTHON}" -B "${example}")
  set_tests_properties(python_tests python_strict_tests python_example PROPERTIES
    TIMEOUT 600
    ENVIRONMENT
      "ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>;PYTHONPATH=${PROJECT_SOURCE_DIR}/examples/python")
endif()
