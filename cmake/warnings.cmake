# Warnings for this project's own targets; what is built from elsewhere keeps its own.
function(ortholan_warnings target)
  set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Werror)
  target_compile_options(${target} PRIVATE
    "$<$<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>:${warnings}>"
    "$<$<COMPILE_LANG_AND_ID:C,GNU,Clang,AppleClang>:${warnings};-Wstrict-prototypes>")
endfunction()
