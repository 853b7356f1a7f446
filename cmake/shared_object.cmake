# The shared object: its own symbols alone are visible, and nothing stays undefined.
set(ORTHOLAN_EXPORTS "${PROJECT_SOURCE_DIR}/cmake/exports.map")
target_link_options(ortholan PRIVATE
  "LINKER:--version-script=${ORTHOLAN_EXPORTS}" "LINKER:-Bsymbolic-functions")
set_target_properties(ortholan PROPERTIES LINK_DEPENDS "${ORTHOLAN_EXPORTS}")

# A sanitizer's runtime comes with the program, so that its symbols are undefined here.
if(NOT ORTHOLAN_SANITIZED)
  target_link_options(ortholan PRIVATE "LINKER:-z,defs")
endif()

# Calls between the library's own exported functions need not be open to replacement.
target_compile_options(ortholan_objects PRIVATE
  "$<$<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>>:-fno-semantic-interposition>")
