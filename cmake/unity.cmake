# Where CMAKE_UNITY_BUILD asks for it, the sources of one folder are compiled as one: most of a
# source's time is in headers that its neighbours include too. Names in unnamed namespaces are
# therefore different within a folder; the presets of clang++ compile every source alone.
function(ortholan_unity target)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    if(source MATCHES "\\.cpp$")
      get_filename_component(folder "${source}" ABSOLUTE)
      get_filename_component(folder "${folder}" DIRECTORY)
      file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${folder}")
      string(MAKE_C_IDENTIFIER "${folder}" group)
      set_source_files_properties("${source}" PROPERTIES UNITY_GROUP ${group})
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()
