# Packages, made by `make package`: Debian's for the native build, a ZIP for Windows; where Debian's
# tools are not at hand, an archive.
set(CPACK_PACKAGE_NAME ortholan)
set(CPACK_PACKAGE_VENDOR "the Ortholan authors")
# The project has no address of its own: who hands the packages on says theirs.
set(CPACK_PACKAGE_CONTACT "the Ortholan authors <ortholan@ortholan.invalid>" CACHE STRING
  "Who answers for the packages: name <address>")
# Else it would stand in front of each package's own synopsis.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Between installation and packing, and afterwards.
set(CPACK_ORTHOLAN_SYMBOLS "${PROJECT_SOURCE_DIR}/packaging/debian/libortholan.symbols")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/package_contents.cmake")
set(CPACK_ORTHOLAN_OBJCOPY "${CMAKE_OBJCOPY}")

find_program(ORTHOLAN_DPKG_SHLIBDEPS dpkg-shlibdeps)
find_program(ORTHOLAN_DPKG_GENSYMBOLS dpkg-gensymbols)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
elseif(NOT ORTHOLAN_DPKG_SHLIBDEPS OR NOT ORTHOLAN_DPKG_GENSYMBOLS)
  set(CPACK_GENERATOR TGZ)
  set(CPACK_STRIP_FILES ON)
else()
  set(CPACK_GENERATOR DEB)
  # Debug information goes into packages of its own: compilers describe a class where its virtual
  # functions are, so that debuggers need the library's.
  set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
  set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/package_control.cmake")

  # One package a group; its first line of description is the synopsis.
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
  set(CPACK_COMPONENT_RUNTIME_GROUP runtime)
  set(CPACK_COMPONENT_PROGRAM_GROUP program)
  set(CPACK_COMPONENT_DEVELOPMENT_GROUP development)
  set(CPACK_COMPONENT_DOCUMENTS_GROUP documents)
  set(CPACK_COMPONENT_PYTHON_GROUP python)

  # Below the first one of Debian's own, should there be one.
  set(CPACK_DEBIAN_PACKAGE_RELEASE 0upstream1)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
  set(runtime "libortholan${PROJECT_VERSION_MAJOR}")
  set(about "Ortholan converts distinguished names of X.509 certificates between text and
DER, and reads and writes general names and certificate extensions.")

  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime}")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
  set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "names and extensions of X.509 certificates - shared library\n${about}")

  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libortholan-dev)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${version})")
  set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
    "names and extensions of X.509 certificates - development files\n${about}
.
This package holds the headers, the static library, and what CMake, pkg-config
and GDB need to find and show the library.")
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libortholan-doc)

  set(CPACK_DEBIAN_DOCUMENTS_PACKAGE_NAME libortholan-doc)
  set(CPACK_DEBIAN_DOCUMENTS_PACKAGE_SECTION doc)
  set(CPACK_DEBIAN_DOCUMENTS_PACKAGE_ARCHITECTURE all)
  set(CPACK_DEBIAN_DOCUMENTS_DESCRIPTION
    "names and extensions of X.509 certificates - documents\n${about}
.
This package holds the documents of the library and of its C interface.")

  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-ortholan)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "${runtime} (>= ${PROJECT_VERSION}~), python3:any")
  set(CPACK_DEBIAN_PYTHON_DESCRIPTION
    "names and extensions of X.509 certificates - Python package\n${about}
.
This package holds the package ortholan for Python 3.")

  set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME x509name)
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
  # The library is found where it was built; it has no package yet to depend on.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}")
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${runtime} (>= ${PROJECT_VERSION}~)")
  set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
    "converts and shows names of X.509 certificates\n${about}
.
This package holds the command x509name, its manual page and its completion
for bash.")
endif()
include(CPack)
