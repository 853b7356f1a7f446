# The reference manual from the public headers: `cmake --build ... --target docs`.
find_package(Doxygen QUIET OPTIONAL_COMPONENTS dot)
if(NOT DOXYGEN_FOUND)
  return()
endif()

set(ORTHOLAN_HAVE_DOT NO)
if(TARGET Doxygen::dot)
  set(ORTHOLAN_HAVE_DOT YES)
endif()
configure_file(docs/Doxyfile.in "${PROJECT_BINARY_DIR}/Doxyfile" @ONLY)
add_custom_target(docs
  COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/Doxyfile"
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
  COMMENT "Writing the reference manual"
  VERBATIM)
