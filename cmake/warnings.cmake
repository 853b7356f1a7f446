# Warnings for this project's own targets; what is built from elsewhere keeps its own.
function(ortholan_warnings target)
  if(MSVC)
    # Sources are UTF-8, with Cyrillic in wide literals. Padding is what alignas asks for (C4324), and
    # getenv is the standard's (C4996).
    target_compile_options(${target} PRIVATE /W4 /wd4324 /permissive- /utf-8)
    target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS)
    set(as_errors /WX)
  else()
    set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion)
    target_compile_options(${target} PRIVATE
      "$<$<COMPILE_LANGUAGE:CXX,C>:${warnings}>"
      "$<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes>")
    set(as_errors "$<$<COMPILE_LANGUAGE:CXX,C>:-Werror>")
  endif()
  if(ORTHOLAN_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE ${as_errors})
  endif()
endfunction()
