# Run by CPack when its Debian packages are made. Its scripts call ldconfig, once a package; Debian
# wants the trigger instead, which runs it once for all that is installed together.
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
  execute_process(COMMAND dpkg-deb --root-owner-group --build "${tree}" "${package}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${tree}")
endforeach()
