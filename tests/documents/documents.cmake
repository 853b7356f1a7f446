# The README and the pages: their programs compiled and run, their tables asked of the library.
include(documents/example.cmake)

# What C programs are linked with: on Windows, as other compilers do it, the import library of the C
# names alone.
set(c_library Ortholan::ortholan)
if(TARGET ortholan_c_library)
  set(c_library "${ORTHOLAN_C_LIBRARY}")
endif()

foreach(document IN ITEMS README.md docs/getting-started.md docs/recipes.md docs/name-text.md
    docs/rfc4514.md docs/c-interface.md docs/identity.md docs/matching.md
    docs/constraints.md docs/extensions.md docs/show.md)
  ortholan_document_programs(${document})
endforeach()

if(NOT ORTHOLAN_CHECK_SOURCES)
  return()
endif()
ortholan_test(document_tests SHARED documents/page.cpp documents/tables_test.cpp
  documents/constraints_table_test.cpp documents/check_table_test.cpp documents/extensions_table_test.cpp)
get_filename_component(root "${ORTHOLAN_TEST_ROOT}" DIRECTORY)
target_compile_definitions(document_tests PRIVATE ORTHOLAN_TEST_SOURCES="${root}")
