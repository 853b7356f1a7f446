# What GDB shows.
set(debug "${CMAKE_CURRENT_SOURCE_DIR}/debug")
add_executable(printed "${debug}/printed.cpp")
target_link_libraries(printed PRIVATE Ortholan::ortholan)
# Every object where the source has it, whatever the build's options.
target_compile_options(printed PRIVATE -O0 -g -U_FORTIFY_SOURCE)
ortholan_warnings(printed)
# Without GDB the test fails.
find_program(ORTHOLAN_GDB gdb)
add_test(NAME gdb_printers COMMAND python3 "${debug}/printers_test.py" "${ORTHOLAN_GDB}"
  "${PROJECT_SOURCE_DIR}/packaging/debug/ortholan_gdb.py" $<TARGET_FILE:printed>
  "${CMAKE_CURRENT_SOURCE_DIR}/data/names.txt" $<TARGET_FILE:ortholan> $<TARGET_FILE:x509name>
  "${CMAKE_COMMAND}" "${PROJECT_BINARY_DIR}")
set_tests_properties(gdb_printers PROPERTIES TIMEOUT 600)
