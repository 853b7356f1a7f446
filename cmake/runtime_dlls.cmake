# The compiler's runtime as DLLs. Exceptions and containers cross ortholan.dll's border, so that it
# and its programs share one runtime instead of each carrying a copy.
set(ORTHOLAN_RUNTIME_DLL_NAMES libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)

# Sets `out` to the paths of the DLLs that the compiler at hand comes with.
function(ortholan_find_runtime_dlls out)
  separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS} ${CMAKE_SHARED_LINKER_FLAGS}")
  if(CMAKE_CXX_COMPILER_TARGET)
    list(APPEND flags "--target=${CMAKE_CXX_COMPILER_TARGET}")
  endif()
  set(found)
  foreach(name IN LISTS ORTHOLAN_RUNTIME_DLL_NAMES)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" ${flags} "-print-file-name=${name}"
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      message(FATAL_ERROR "${CMAKE_CXX_COMPILER} does not say where its ${name} is")
    endif()
    get_filename_component(path "${path}" ABSOLUTE)
    list(APPEND found "${path}")
  endforeach()
  set(${out} "${found}" PARENT_SCOPE)
endfunction()

# Puts the DLLs beside the programs in `directory`; one that was deleted comes back with the next
# build.
function(ortholan_copy_runtime_dlls directory)
  ortholan_find_runtime_dlls(dlls)
  set(copies)
  foreach(dll IN LISTS dlls)
    get_filename_component(name "${dll}" NAME)
    add_custom_command(OUTPUT "${directory}/${name}"
      COMMAND "${CMAKE_COMMAND}" -E copy "${dll}" "${directory}/${name}"
      DEPENDS "${dll}"
      VERBATIM)
    list(APPEND copies "${directory}/${name}")
  endforeach()
  add_custom_target(ortholan_runtime_dlls ALL DEPENDS ${copies})
  add_dependencies(ortholan ortholan_runtime_dlls)
  add_dependencies(ortholan_static ortholan_runtime_dlls)
endfunction()

# Puts the licences of the DLLs into `directory`, from where Debian keeps those of its packages; on
# other systems whoever hands the DLLs on adds them.
function(ortholan_runtime_licences directory)
  file(MAKE_DIRECTORY "${directory}")
  foreach(pair IN ITEMS
      "doc/gcc-mingw-w64-x86-64-posix-runtime/copyright|libstdc++-and-libgcc.txt"
      "doc/mingw-w64-x86-64-dev/copyright|winpthreads.txt"
      "common-licenses/GPL-3|GPL-3.txt")
    string(REPLACE "|" ";" pair "${pair}")
    list(GET pair 0 from)
    list(GET pair 1 name)
    if(EXISTS "/usr/share/${from}")
      configure_file("/usr/share/${from}" "${directory}/${name}" COPYONLY)
    else()
      message(STATUS "The licence of the runtime's DLLs is not at hand: ${name}")
    endif()
  endforeach()
endfunction()
