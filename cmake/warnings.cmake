# Warnings for this project's own targets; what is built from elsewhere keeps its own.
function(ortholan_warnings target)
  target_compile_options(${target} PRIVATE
    "$<$<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Wsign-conversion;-Werror>")
endfunction()
