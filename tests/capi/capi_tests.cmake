# The C interface as its users see it, by the rows that the other interfaces are asked too. Its page is
# tested with the others, and its programs in C; Python's are tests of its package.
ortholan_test_sources(sources capi)
ortholan_test(capi_tests SHARED ${sources} support/vectors.cpp)
