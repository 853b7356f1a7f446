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
  # The table of a directory prints what its twin in C++ does.
  set(page "${PROJECT_SOURCE_DIR}/docs/recipes.md")
  ortholan_document_example(code "${page}" python)
  file(READ "${page}" text)
  string(REGEX MATCH "\n## Common names and .*" text "${text}")
  ortholan_next_example(printed rest "${text}" text)
  set(recipe "${CMAKE_CURRENT_BINARY_DIR}/recipe.py")
  file(CONFIGURE OUTPUT "${recipe}" CONTENT "@code@" @ONLY)
  file(CONFIGURE OUTPUT "${recipe}.txt" CONTENT "@printed@" @ONLY)
  add_test(NAME python_recipe
    COMMAND "${CMAKE_COMMAND}" -D "EXPECTED=${recipe}.txt"
      -P "${PROJECT_SOURCE_DIR}/tests/documents/run.cmake" --
      "${ORTHOLAN_PYTHON}" -B "${recipe}" "${ORTHOLAN_TEST_ROOT}/data/certificates")
  set_tests_properties(python_tests python_strict_tests python_example python_recipe PROPERTIES
    TIMEOUT 600
    ENVIRONMENT
      "PYTHONUTF8=1;ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>;PYTHONPATH=${PROJECT_SOURCE_DIR}/examples/python")
endif()
