# The first C++ example of the README, compiled and run as an application would be.
ortholan_document_example(text "${PROJECT_SOURCE_DIR}/README.md" cpp)
set(example "${CMAKE_CURRENT_BINARY_DIR}/readme_example.cpp")
file(CONFIGURE OUTPUT "${example}" CONTENT "@text@" @ONLY)

add_executable(readme_example "${example}")
target_link_libraries(readme_example PRIVATE Ortholan::ortholan)
ortholan_warnings(readme_example)
add_test(NAME readme_example COMMAND readme_example)
ortholan_test_properties(readme_example)
