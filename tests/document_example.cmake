# Code blocks of documents, compiled or run as their reader would.

# Sets `out` to the text of the first block of `language` in `document`, "" where there is none, and
# has the build configured anew when the document changes.
function(ortholan_document_example out document language)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${document}")
  file(READ "${document}" text)
  set(opening "```${language}\n")
  string(FIND "${text}" "${opening}" begin)
  if(begin EQUAL -1)
    message(SEND_ERROR "${document} has no ```${language} block")
    set(${out} "" PARENT_SCOPE)
    return()
  endif()
  string(LENGTH "${opening}" length)
  math(EXPR begin "${begin} + ${length}")
  string(SUBSTRING "${text}" ${begin} -1 text)
  string(FIND "${text}" "\n```" end)
  string(SUBSTRING "${text}" 0 ${end} text)
  set(${out} "${text}\n" PARENT_SCOPE)
endfunction()
