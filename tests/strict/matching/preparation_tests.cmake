# Preparation held against Python: code points against the tables that Python has itself. A sanitized
# library does not load into a program that was built without.
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  add_test(NAME code_points
    COMMAND python3 -B "${CMAKE_CURRENT_LIST_DIR}/code_points.py")
  set_tests_properties(code_points PROPERTIES TIMEOUT 300
    ENVIRONMENT "ORTHOLAN_LIBRARY=$<TARGET_FILE:ortholan>")
endif()
