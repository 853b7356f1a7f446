# Run by CPack when its Debian packages are made, for what it cannot write into the library's. Its
# scripts call ldconfig, once a package; Debian wants the trigger instead, which runs it once for all
# that is installed together. And of each symbol, since which version there is one by that name.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  get_filename_component(name "${package}" NAME)
  if(NOT name MATCHES "^${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME}_")
    continue()
  endif()
  set(tree "${package}.tree")
  file(REMOVE_RECURSE "${tree}")
  execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${tree}" COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${tree}/DEBIAN/postinst" "${tree}/DEBIAN/postrm")
  file(WRITE "${tree}/DEBIAN/triggers" "activate-noawait ldconfig\n")
  file(GLOB library "${tree}/usr/lib/*/libortholan.so.${CPACK_PACKAGE_VERSION}")
  # Fails where a symbol is gone; one that is new gets this version.
  execute_process(COMMAND dpkg-gensymbols -q -c1 "-p${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME}"
      "-v${CPACK_PACKAGE_VERSION}" "-e${library}" "-I${CPACK_ORTHOLAN_SYMBOLS}"
      "-O${tree}/DEBIAN/symbols"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND dpkg-deb --root-owner-group --build "${tree}" "${package}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${tree}")
endforeach()
