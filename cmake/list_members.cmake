# Writes a module definition file with the members of the list of extensions that an object defines.
#
#   cmake -DNM=nm -DOBJECT=cert_extension_list.cpp.obj -DOUTPUT=members.def -P list_members.cmake
execute_process(COMMAND "${NM}" "${OBJECT}" OUTPUT_VARIABLE symbols)
string(REGEX MATCHALL " T _ZNK?St[^\n\r]*4listIN8Ortholan13CertExtension[^\n\r]*" members "${symbols}")
if(NOT members)
  message(FATAL_ERROR "${OBJECT} defines no member of the list")
endif()
list(TRANSFORM members REPLACE "^ T " "  ")
list(JOIN members "\n" lines)
file(WRITE "${OUTPUT}" "EXPORTS\n${lines}\n")
