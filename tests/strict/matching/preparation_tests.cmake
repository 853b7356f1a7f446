# Preparation held against Python: its tables against the script that made them, and every code point
# against the tables that Python has itself.
if(ORTHOLAN_CHECK_SOURCES)
  add_test(NAME preparation_tables
    COMMAND python3 -B "${PROJECT_SOURCE_DIR}/scripts/make_preparation_tables.py" --check)
  set_tests_properties(preparation_tables PROPERTIES TIMEOUT 120)
endif()
# A sanitized library does not load into a program that was built without.
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  add_test(NAME code_points
    COMMAND python3 -B "${CMAKE_CURRENT_LIST_DIR}/code_points.py")
  set_tests_properties(code_points PROPERTIES TIMEOUT 300
    ENVIRONMENT "ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>")
endif()
