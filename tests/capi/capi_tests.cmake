# The C interface as its users see it: from C, from Python, and as its page shows it.
file(GLOB sources CONFIGURE_DEPENDS capi/*.c)
ortholan_document_example(text "${PROJECT_SOURCE_DIR}/docs/c-interface.md" c)
set(example "${CMAKE_CURRENT_BINARY_DIR}/c_interface_example.c")
file(CONFIGURE OUTPUT "${example}" CONTENT "@text@" @ONLY)

set(library Ortholan::ortholan)
if(WIN32)
  # The example is linked as other compilers do it: by an import library of the C names alone.
  set(library "${CMAKE_CURRENT_BINARY_DIR}/ortholan_c.lib")
  add_custom_command(OUTPUT "${library}"
    COMMAND "${CMAKE_DLLTOOL}" --input-def "${ORTHOLAN_C_DEFINITIONS}" --output-lib "${library}"
    DEPENDS "${ORTHOLAN_C_DEFINITIONS}"
    VERBATIM)
  add_custom_target(ortholan_c_import DEPENDS "${library}")
endif()

add_executable(capi_tests ${sources})
target_link_libraries(capi_tests PRIVATE Ortholan::ortholan)
add_executable(c_interface_example "${example}")
target_link_libraries(c_interface_example PRIVATE "${library}")
add_dependencies(c_interface_example ortholan)
if(WIN32)
  add_dependencies(c_interface_example ortholan_c_import)
endif()

foreach(program IN ITEMS capi_tests c_interface_example)
  set_target_properties(${program} PROPERTIES
    C_STANDARD 99 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF)
  # A C program needs no C++ runtime of its own; the sanitizers' comes with the C++ driver.
  if(ORTHOLAN_SANITIZED)
    set_target_properties(${program} PROPERTIES LINKER_LANGUAGE CXX)
  endif()
  target_include_directories(${program} PRIVATE
    "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/include")
  ortholan_warnings(${program})
  add_test(NAME ${program} COMMAND ${program})
  ortholan_test_properties(${program})
endforeach()
set_tests_properties(c_interface_example PROPERTIES
  PASS_REGULAR_EXPRESSION "^C=RU,O=\"Org, Ltd\",CN=Alpha\r?\n$")

# A sanitized library does not load into a program that was built without.
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  ortholan_document_example(text "${PROJECT_SOURCE_DIR}/docs/c-interface.md" python)
  set(example "${CMAKE_CURRENT_BINARY_DIR}/c_interface_example.py")
  file(CONFIGURE OUTPUT "${example}" CONTENT "@text@" @ONLY)
  find_program(ORTHOLAN_PYTHON python3 REQUIRED)
  add_test(NAME python_tests
    COMMAND "${ORTHOLAN_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/capi/python_test.py")
  add_test(NAME python_example COMMAND "${ORTHOLAN_PYTHON}" -B "${example}")
  set_tests_properties(python_tests python_example PROPERTIES
    TIMEOUT 120
    ENVIRONMENT
      "ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>;PYTHONPATH=${PROJECT_SOURCE_DIR}/examples/python")
endif()
