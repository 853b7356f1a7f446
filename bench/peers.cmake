# The program that measures the library beside its peers, each of them where it is installed.
find_package(benchmark REQUIRED)
ortholan_bench_program(bench_names
  main.cpp measure.cpp names.cpp allocations.cpp ortholan.cpp strict_names.cpp strict_matching.cpp
  strict_constraints.cpp chains.cpp strict_identity.cpp strict_extensions.cpp extension_list.cpp
  growth.cpp)
target_link_libraries(bench_names PRIVATE benchmark::benchmark)

# ortholan_bench_peer(<name> <header> <library>...)
function(ortholan_bench_peer name header)
  find_path(ORTHOLAN_BENCH_${name}_INCLUDE ${header} PATH_SUFFIXES botan-2)
  mark_as_advanced(ORTHOLAN_BENCH_${name}_INCLUDE)
  set(libraries)
  foreach(library IN LISTS ARGN)
    find_library(ORTHOLAN_BENCH_${library}_LIBRARY ${library})
    mark_as_advanced(ORTHOLAN_BENCH_${library}_LIBRARY)
    list(APPEND libraries ${ORTHOLAN_BENCH_${library}_LIBRARY})
  endforeach()
  if(NOT ORTHOLAN_BENCH_${name}_INCLUDE OR "${libraries}" MATCHES "NOTFOUND")
    message(STATUS "bench: ${name} is not installed and left out")
    return()
  endif()
  target_sources(bench_names PRIVATE peers/${name}.cpp)
  target_include_directories(bench_names SYSTEM PRIVATE "${ORTHOLAN_BENCH_${name}_INCLUDE}")
  target_link_libraries(bench_names PRIVATE ${libraries})
endfunction()

ortholan_bench_peer(openssl openssl/x509.h crypto)
ortholan_bench_peer(gnutls gnutls/x509.h gnutls)
ortholan_bench_peer(botan botan/x509_dn.h botan-2)
ortholan_bench_peer(mbedtls mbedtls/x509.h mbedx509 mbedcrypto)
