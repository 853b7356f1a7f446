# The program as its users run it.
set(cli "${CMAKE_CURRENT_SOURCE_DIR}/cli")
set(runs_x509name ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:x509name>)

function(ortholan_cli_test name)
  add_test(NAME cli_${name} COMMAND ${ARGN})
  ortholan_test_properties(cli_${name})
  # A process for each command line.
  set_tests_properties(cli_${name} PROPERTIES TIMEOUT 600)
endfunction()

# Tables of command lines. Under Wine a process costs as much as twenty elsewhere: what neither reads
# files in its own way nor writes them is not asked there again.
set(tables encode decode certificates hostile streams)
if(NOT WIN32)
  list(APPEND tables usage strict_constraints strict_identity strict_matching)
endif()
foreach(table IN LISTS tables)
  ortholan_cli_test(${table} "${cli}/run.sh" ${table}.sh ${runs_x509name})
endforeach()

# Runners of vector files.
file(GLOB runners CONFIGURE_DEPENDS "${cli}/strict_*.py")
if(WIN32)
  # A process for each row; there the C interface is asked the same rows.
  list(FILTER runners EXCLUDE REGEX "/strict_extensions")
endif()
foreach(runner IN LISTS runners)
  get_filename_component(name "${runner}" NAME_WE)
  ortholan_cli_test(${name} python3 "${runner}" "${CMAKE_CURRENT_SOURCE_DIR}/data" ${runs_x509name})
endforeach()

set(certificates "${CMAKE_CURRENT_SOURCE_DIR}/data/certificates")
ortholan_cli_test(vectors python3 "${cli}/vectors_test.py" ${runs_x509name})
ortholan_cli_test(blocks python3 "${cli}/streams_test.py" "${certificates}" ${runs_x509name})
if(NOT WIN32)
  ortholan_cli_test(json python3 "${cli}/json_test.py" "${certificates}" ${runs_x509name})
endif()
if(NOT WIN32 AND NOT ORTHOLAN_SANITIZED)
  # Wine's console is not the one of Windows. Sanitizers have nothing to say of a screen.
  ortholan_cli_test(terminal python3 "${cli}/terminal_test.py" "${certificates}" ${runs_x509name})
  set_tests_properties(cli_terminal PROPERTIES SKIP_RETURN_CODE 77)
  ortholan_cli_test(openssl_text python3 "${cli}/openssl_text.py" "${CMAKE_CURRENT_SOURCE_DIR}/data"
    ${runs_x509name})
  ortholan_cli_test(completion
    "${cli}/completion.sh" "${PROJECT_SOURCE_DIR}/examples/x509name.bash" ${runs_x509name})
  foreach(page IN ITEMS streams show)
    ortholan_cli_test(${page}_page python3 "${cli}/console_blocks.py"
      "${PROJECT_SOURCE_DIR}/docs/${page}.md" "${certificates}" ${runs_x509name})
  endforeach()
endif()
if(ORTHOLAN_CHECK_SOURCES)
  ortholan_cli_test(manual
    "${cli}/manual.sh" "${PROJECT_SOURCE_DIR}/examples/x509name.1" ${runs_x509name})
endif()
