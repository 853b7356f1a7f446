# Cross-builds for Linux on arm64; what was built runs through qemu-user.
set(machine aarch64)
include("${CMAKE_CURRENT_LIST_DIR}/linux-cross-toolchain.cmake")
