# The README and the pages: their programs compiled and run, their tables asked of the library.
include(documents/example.cmake)
foreach(document IN ITEMS README.md docs/getting-started.md docs/recipes.md)
  ortholan_document_programs(${document})
endforeach()

ortholan_test(document_tests SHARED documents/page.cpp documents/tables_test.cpp)
get_filename_component(root "${ORTHOLAN_TEST_ROOT}" DIRECTORY)
target_compile_definitions(document_tests PRIVATE ORTHOLAN_TEST_SOURCES="${root}")
