# An overlay port: vcpkg install ortholan --overlay-ports=packaging
# It builds the checkout that it lies in.
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)

vcpkg_check_features(OUT_FEATURE_OPTIONS FEATURE_OPTIONS
  FEATURES
    tools ORTHOLAN_BUILD_EXAMPLES)
vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS
    -DORTHOLAN_BUILD_TESTS=OFF
    ${FEATURE_OPTIONS})
vcpkg_cmake_install()
vcpkg_copy_pdbs()
vcpkg_cmake_config_fixup(PACKAGE_NAME Ortholan CONFIG_PATH lib/cmake/Ortholan)
vcpkg_fixup_pkgconfig()
if("tools" IN_LIST FEATURES)
  vcpkg_copy_tools(TOOL_NAMES x509name AUTO_CLEAN)
endif()

# Both libraries are installed whatever the triplet asks for: the targets differ by name.
set(VCPKG_POLICY_DLLS_IN_STATIC_LIBRARY enabled)
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
