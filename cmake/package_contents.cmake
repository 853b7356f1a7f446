# Run by CPack in its staging directory, before it packs. For Debian: what its policy wants beside
# the installed files, and manual pages compressed. For Windows: debug information in files of its
# own, where the compiler did not put it there.

# debian_documents(<package> <root>): copyright and changelogs; the licence is in the former.
function(debian_documents package root)
  set(directory "${root}/usr/share/doc/${package}")
  file(MAKE_DIRECTORY "${directory}")
  file(REMOVE "${directory}/LICENSE")

  file(STRINGS "${CPACK_RESOURCE_FILE_LICENSE}" lines)
  set(terms "")
  foreach(line IN LISTS lines)
    if(line MATCHES "^Copyright \\(c\\) (.*)")
      set(holder "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^MIT License")
      continue()
    elseif(line STREQUAL "")
      string(APPEND terms " .\n")
    else()
      string(APPEND terms " ${line}\n")
    endif()
  endforeach()
  # Without the empty lines that came before the terms.
  string(REGEX REPLACE "^( \\.\n)+" "" terms "${terms}")
  file(WRITE "${directory}/copyright"
    "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n"
    "Upstream-Name: Ortholan\n\n"
    "Files: *\nCopyright: ${holder}\nLicense: Expat\n${terms}")

  set(version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  set(changelog "${directory}/changelog.Debian")
  file(WRITE "${changelog}"
    "ortholan (${version}) unstable; urgency=medium\n\n"
    "  * What changed is in changelog.gz.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  file(REMOVE "${directory}/CHANGELOG.md")
  get_filename_component(source "${CPACK_RESOURCE_FILE_LICENSE}" DIRECTORY)
  configure_file("${source}/CHANGELOG.md" "${directory}/changelog" COPYONLY)
  execute_process(COMMAND gzip -9nf "${changelog}" "${directory}/changelog"
    COMMAND_ERROR_IS_FATAL ANY)
  file(CHMOD "${directory}/copyright" "${changelog}.gz" "${directory}/changelog.gz"
    PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

# separate_symbols(<file>): debug information goes to <file>.debug, which debuggers find by the
# name that stays behind.
function(separate_symbols file)
  get_filename_component(directory "${file}" DIRECTORY)
  get_filename_component(name "${file}" NAME)
  foreach(arguments IN ITEMS
      "--only-keep-debug;${name};${name}.debug"
      "--strip-unneeded;${name}"
      "--add-gnu-debuglink=${name}.debug;${name}")
    execute_process(COMMAND "${CPACK_ORTHOLAN_OBJCOPY}" ${arguments}
      WORKING_DIRECTORY "${directory}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endfunction()

set(stage "${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(group IN ITEMS runtime development documents program python)
    string(TOUPPER ${group} upper)
    debian_documents("${CPACK_DEBIAN_${upper}_PACKAGE_NAME}" "${stage}/${group}")
  endforeach()
  # What debian_documents gave another name is found by it.
  set(readme "${stage}/documents/usr/share/doc/${CPACK_DEBIAN_DOCUMENTS_PACKAGE_NAME}/README.md")
  file(READ "${readme}" text)
  string(REPLACE "](LICENSE)" "](copyright)" text "${text}")
  string(REPLACE "](CHANGELOG.md)" "](changelog.gz)" text "${text}")
  file(WRITE "${readme}" "${text}")
  file(GLOB pages "${stage}/program/usr/share/man/man1/*.1")
  execute_process(COMMAND gzip -9nf ${pages} COMMAND_ERROR_IS_FATAL ANY)
  file(GLOB_RECURSE archives "${stage}/development/*.a")
  foreach(archive IN LISTS archives)
    execute_process(COMMAND "${CPACK_ORTHOLAN_OBJCOPY}" --strip-debug --enable-deterministic-archives
        --remove-section=.comment "${archive}"
      COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
elseif(CPACK_GENERATOR STREQUAL "ZIP" AND CPACK_ORTHOLAN_OBJCOPY)
  file(GLOB_RECURSE binaries "${stage}/*/ortholan.dll" "${stage}/*/x509name.exe")
  foreach(binary IN LISTS binaries)
    separate_symbols("${binary}")
  endforeach()
  # The compiler's own come with ten times their size in debug information.
  file(GLOB_RECURSE runtime "${stage}/*/lib*.dll")
  foreach(dll IN LISTS runtime)
    execute_process(COMMAND "${CPACK_ORTHOLAN_OBJCOPY}" --strip-debug "${dll}"
      COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endif()
