# Cross-builds for Linux on s390x, which keeps the first octet of a number first; what was built runs
# through qemu-user.
set(machine s390x)
include("${CMAKE_CURRENT_LIST_DIR}/linux-cross-toolchain.cmake")
