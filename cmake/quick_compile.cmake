# What is compiled more often than it runs, tests above all, has no optimisation and little to debug by,
# which takes a third of the time. Under Wine nothing reads debug information, and linking it is slow.
function(ortholan_quick_compile target)
  if(MSVC)
    return()
  endif()
  set(debug -g1)
  if(WIN32)
    set(debug -g0)
  endif()
  target_compile_options(${target} PRIVATE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-O0;${debug};-U_FORTIFY_SOURCE>")
endfunction()
