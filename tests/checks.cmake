# Checks of the sources themselves, which are done again only where something that they read has changed:
# each leaves a file behind, and one test has the build bring all of them up to date.
set(ORTHOLAN_CHECKED "")

# ortholan_check(<name> COMMAND <command> <argument>... DEPENDS <file>...)
function(ortholan_check name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "COMMAND;DEPENDS")
  set(checked "${CMAKE_CURRENT_BINARY_DIR}/checked/${name}")
  add_custom_command(OUTPUT "${checked}"
    COMMAND ${arg_COMMAND}
    COMMAND "${CMAKE_COMMAND}" -E touch "${checked}"
    DEPENDS ${arg_DEPENDS}
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Checking ${name}"
    VERBATIM)
  set(ORTHOLAN_CHECKED "${ORTHOLAN_CHECKED};${checked}" PARENT_SCOPE)
endfunction()
file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/checked")

# Everything but what was built, by kind.
file(GLOB folders CONFIGURE_DEPENDS LIST_DIRECTORIES true "${PROJECT_SOURCE_DIR}/*")
list(FILTER folders EXCLUDE REGEX "/build$")
set(sources "")
set(cmake_sources "")
foreach(folder IN LISTS folders)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS
    "${folder}/*.cpp" "${folder}/*.c" "${folder}/*.h" "${folder}/*.hpp" "${folder}/*.inc")
  list(APPEND sources ${found})
  file(GLOB_RECURSE found CONFIGURE_DEPENDS "${folder}/CMakeLists.txt" "${folder}/*.cmake"
    "${folder}/*.in" "${folder}/*.map" "${folder}/*.rc")
  list(APPEND cmake_sources ${found})
endforeach()
list(APPEND cmake_sources "${PROJECT_SOURCE_DIR}/CMakeLists.txt")

set(scripts "${PROJECT_SOURCE_DIR}/scripts")
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
file(GLOB_RECURSE recipes CONFIGURE_DEPENDS "${packaging}/conan/*" "${packaging}/vcpkg/*")

ortholan_check(format COMMAND "${scripts}/format.sh" --check
  DEPENDS ${sources} "${scripts}/format.sh" "${scripts}/sources.sh" "${PROJECT_SOURCE_DIR}/.clang-format")
ortholan_check(layers COMMAND "${scripts}/check_layers.sh"
  DEPENDS ${sources} "${scripts}/check_layers.sh" "${scripts}/sources.sh")
ortholan_check(preparation_tables COMMAND python3 -B "${scripts}/make_preparation_tables.py" --check
  DEPENDS ${sources} "${scripts}/make_preparation_tables.py")
ortholan_check(recipes
  COMMAND python3 "${CMAKE_CURRENT_SOURCE_DIR}/recipes.py" "${PROJECT_SOURCE_DIR}" ${PROJECT_VERSION}
    "${CMAKE_COMMAND}"
  DEPENDS ${sources} ${cmake_sources} ${recipes} "${CMAKE_CURRENT_SOURCE_DIR}/recipes.py")
ortholan_check(cmake_version
  COMMAND python3 "${CMAKE_CURRENT_SOURCE_DIR}/cmake_version.py" "${PROJECT_SOURCE_DIR}"
  DEPENDS ${cmake_sources} "${CMAKE_CURRENT_SOURCE_DIR}/cmake_version.py")
ortholan_check(natvis
  COMMAND python3 "${CMAKE_CURRENT_SOURCE_DIR}/debug/natvis_test.py"
    "${packaging}/debug/ortholan.natvis" "${PROJECT_SOURCE_DIR}"
  DEPENDS ${sources} "${packaging}/debug/ortholan.natvis"
    "${CMAKE_CURRENT_SOURCE_DIR}/debug/natvis_test.py")

add_custom_target(checks DEPENDS ${ORTHOLAN_CHECKED})
add_test(NAME checks COMMAND "${CMAKE_COMMAND}" --build "${PROJECT_BINARY_DIR}" --target checks)
set_tests_properties(checks PROPERTIES TIMEOUT 600 COST 40)
