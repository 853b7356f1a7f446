# The README and the pages: their programs compiled and run, their tables asked of the library.
include(documents/example.cmake)

# What C programs are linked with: on Windows, as other compilers do it, an import library of the C
# names alone.
set(ORTHOLAN_C_LIBRARY Ortholan::ortholan)
if(WIN32)
  set(ORTHOLAN_C_LIBRARY "${CMAKE_CURRENT_BINARY_DIR}/ortholan_c.lib")
  add_custom_command(OUTPUT "${ORTHOLAN_C_LIBRARY}"
    COMMAND "${CMAKE_DLLTOOL}"
      --input-def "${ORTHOLAN_C_DEFINITIONS}" --output-lib "${ORTHOLAN_C_LIBRARY}"
    DEPENDS "${ORTHOLAN_C_DEFINITIONS}"
    VERBATIM)
  add_custom_target(ortholan_c_import DEPENDS "${ORTHOLAN_C_LIBRARY}")
endif()

foreach(document IN ITEMS README.md docs/getting-started.md docs/recipes.md docs/name-text.md
    docs/c-interface.md)
  ortholan_document_programs(${document})
endforeach()

ortholan_test(document_tests SHARED documents/page.cpp documents/tables_test.cpp)
get_filename_component(root "${ORTHOLAN_TEST_ROOT}" DIRECTORY)
target_compile_definitions(document_tests PRIVATE ORTHOLAN_TEST_SOURCES="${root}")
