# What every build of this project's own targets carries to turn a memory fault into an abort.
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  set(ORTHOLAN_SANITIZED ON)
else()
  set(ORTHOLAN_SANITIZED OFF)
endif()

function(ortholan_hardening target)
  if(MSVC)
    # Its defaults: stack guards, DYNAMICBASE, NXCOMPAT, HIGHENTROPYVA.
    return()
  endif()
  set(cxx "$<COMPILE_LANGUAGE:CXX>")
  target_compile_definitions(${target} PRIVATE "$<${cxx}:_GLIBCXX_ASSERTIONS>")
  # Build directories have no place in a delivered file.
  target_compile_options(${target} PRIVATE
    "$<${cxx}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>")

  if(WIN32)
    # Stack protector and _FORTIFY_SOURCE need a further library there, which every program that
    # links the static library would have to name.
    target_link_options(${target} PRIVATE
      "LINKER:--dynamicbase,--nxcompat,--high-entropy-va")
    return()
  endif()

  target_link_options(${target} PRIVATE "LINKER:-z,relro,-z,now")
  if(NOT ORTHOLAN_SANITIZED)
    # _FORTIFY_SOURCE needs an optimising compiler.
    set(release "$<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>")
    target_compile_options(${target} PRIVATE
      "$<$<AND:${cxx},${release}>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  endif()
endfunction()
