# A stranger's program against the installed and moved tree, by every way to find the library.
#
# As a part of another build the whole library is compiled once more, without optimisation, and kept
# for the next run.
set(runner "${CMAKE_CURRENT_SOURCE_DIR}/consumer/run.sh")
set(work "${CMAKE_CURRENT_BINARY_DIR}/consumer")
set(compiler "${CMAKE_CXX_COMPILER}")
if(CMAKE_CXX_COMPILER_TARGET)
  # What clang++ built for Windows has to serve programs of g++.
  set(compiler x86_64-w64-mingw32-g++-posix)
endif()
set(environment
  "CXX=${compiler}" "VERSION=${PROJECT_VERSION}" "OBJDUMP=${CMAKE_OBJDUMP}")
if(WIN32)
  list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " wine)
  list(APPEND environment "WINDOWS=yes" "WINE=${wine}")
endif()

function(ortholan_consumer_test way from to)
  add_test(NAME consumer_${way} COMMAND "${runner}" ${way} "${from}" "${work}/${to}")
  ortholan_test_properties(consumer_${way})
  set_tests_properties(consumer_${way} PROPERTIES TIMEOUT 600 ENVIRONMENT "${environment}")
endfunction()

ortholan_consumer_test(install "${PROJECT_BINARY_DIR}" "a moved tree")
foreach(way IN ITEMS find_package pkg_config)
  ortholan_consumer_test(${way} "${work}/a moved tree" ${way})
  set_property(TEST consumer_${way} APPEND PROPERTY FIXTURES_REQUIRED consumer_tree)
endforeach()

# The program of the page that people start with, by its own CMakeLists.txt.
set(page "${PROJECT_SOURCE_DIR}/docs/getting-started.md")
foreach(pair IN ITEMS cpp:app.cpp cmake:CMakeLists.txt text:expected.txt)
  string(REPLACE ":" ";" pair "${pair}")
  list(GET pair 0 language)
  list(GET pair 1 file)
  ortholan_document_example(text "${page}" ${language})
  file(CONFIGURE OUTPUT "${work}/getting started/${file}" CONTENT "@text@" @ONLY)
endforeach()
ortholan_consumer_test(getting_started "${work}/a moved tree" "getting started")
set_property(TEST consumer_getting_started APPEND PROPERTY FIXTURES_REQUIRED consumer_tree)
set_property(TEST consumer_install APPEND PROPERTY FIXTURES_SETUP consumer_tree)
# Compiles the whole library: once is enough.
if(NOT WIN32)
  ortholan_consumer_test(add_subdirectory "${PROJECT_SOURCE_DIR}" add_subdirectory)
  set_tests_properties(consumer_add_subdirectory PROPERTIES COST 100)
endif()
