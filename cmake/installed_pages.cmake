# The pages as they are installed: a link to what stays with the sources becomes its words.
set(ORTHOLAN_PAGES_DIR "${PROJECT_BINARY_DIR}/pages")

file(GLOB ORTHOLAN_PAGES CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}"
  "${PROJECT_SOURCE_DIR}/docs/*.md")
list(APPEND ORTHOLAN_PAGES README.md CHANGELOG.md SECURITY.md)

# Sets `out` to `text`, the text of `page`, without links to what is not installed.
function(ortholan_installed_links out text page)
  get_filename_component(directory "${PROJECT_SOURCE_DIR}/${page}" DIRECTORY)
  # Only the part in parentheses: lone brackets would confuse a list.
  string(REGEX MATCHALL "\\([^][() \n;#]+[#)]" targets "${text}")
  list(REMOVE_DUPLICATES targets)
  foreach(target IN LISTS targets)
    string(FIND "${text}" "]${target}" place)
    if(place EQUAL -1 OR target MATCHES "^.https?:")
      continue()
    endif()
    string(REGEX REPLACE "[(#)]" "" target "${target}")
    get_filename_component(file "${target}" ABSOLUTE BASE_DIR "${directory}")
    file(RELATIVE_PATH file "${PROJECT_SOURCE_DIR}" "${file}")
    if(NOT file IN_LIST ORTHOLAN_PAGES AND NOT file STREQUAL LICENSE)
      string(REGEX REPLACE "([.+*?^$])" "\\\\\\1" target "${target}")
      string(REGEX REPLACE "\\[([^][]*)\\]\\(${target}(#[^)]*)?\\)" "\\1" text "${text}")
    endif()
  endforeach()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${ORTHOLAN_PAGES_DIR}")
foreach(page IN LISTS ORTHOLAN_PAGES)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${page}")
  file(READ "${page}" text)
  ortholan_installed_links(text "${text}" "${page}")
  file(WRITE "${ORTHOLAN_PAGES_DIR}/${page}" "${text}")
endforeach()
