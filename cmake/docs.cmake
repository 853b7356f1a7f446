# The site from the pages and the public headers: `cmake --build ... --target docs`. Doxygen reads the
# headers, Sphinx writes; its Python is the one that Debian's packages of it are for.
find_package(Doxygen QUIET)
find_package(Python3 QUIET COMPONENTS Interpreter)
find_program(ORTHOLAN_SPHINX NAMES sphinx-build PATHS /usr/bin)
find_program(ORTHOLAN_MANDOC mandoc)
if(NOT DOXYGEN_FOUND OR NOT Python3_FOUND OR NOT ORTHOLAN_SPHINX OR NOT ORTHOLAN_MANDOC)
  return()
endif()

configure_file(docs/site/Doxyfile.in "${PROJECT_BINARY_DIR}/Doxyfile" @ONLY)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/include/*.h" "${PROJECT_SOURCE_DIR}/include/*.hpp")
set(site "${PROJECT_BINARY_DIR}/docs")
# Pages of an earlier run that are no more would stay.
add_custom_target(docs
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${site}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${site}"
  COMMAND Python3::Interpreter -B docs/site/filter.py --check ${headers}
    "${PROJECT_BINARY_DIR}/include/ortholan/version.h"
  COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/Doxyfile"
  COMMAND Python3::Interpreter -B docs/site/build.py "${PROJECT_SOURCE_DIR}" "${site}/xml"
    "${site}/source"
  COMMAND "${CMAKE_COMMAND}" -E env "ORTHOLAN_VERSION=${PROJECT_VERSION}"
    "${ORTHOLAN_SPHINX}" -q -W --keep-going -b html "${site}/source" "${site}/html"
  COMMAND Python3::Interpreter -B docs/site/check.py "${PROJECT_SOURCE_DIR}" "${site}/html"
  COMMAND "${CMAKE_COMMAND}" -E echo "The site: ${site}/html/index.html"
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
  COMMENT "Writing the site"
  VERBATIM)
