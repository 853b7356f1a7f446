# The site from the public headers and the pages: `cmake --build ... --target docs`.
find_package(Doxygen QUIET OPTIONAL_COMPONENTS dot)
find_package(Python3 QUIET COMPONENTS Interpreter)
if(NOT DOXYGEN_FOUND OR NOT Python3_FOUND)
  return()
endif()

set(ORTHOLAN_HAVE_DOT NO)
if(TARGET Doxygen::dot)
  set(ORTHOLAN_HAVE_DOT YES)
endif()
configure_file(docs/Doxyfile.in "${PROJECT_BINARY_DIR}/Doxyfile" @ONLY)
file(GLOB inputs CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/*.md" "${PROJECT_SOURCE_DIR}/docs/*.md"
  "${PROJECT_SOURCE_DIR}/include/ortholan/*.h")
# Pages of an earlier run that are no more would stay.
add_custom_target(docs
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${PROJECT_BINARY_DIR}/docs"
  COMMAND Python3::Interpreter -B docs/filter.py --check ${inputs}
    "${PROJECT_BINARY_DIR}/include/ortholan/version.h"
  COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/Doxyfile"
  COMMAND "${CMAKE_COMMAND}" -E echo "The site: ${PROJECT_BINARY_DIR}/docs/html/index.html"
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
  COMMENT "Writing the site"
  VERBATIM)
