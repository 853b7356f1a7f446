# What the toolchain files for other machines under Linux share. They set `machine`, which GCC and qemu
# call alike.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${machine})

set(CMAKE_C_COMPILER ${machine}-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER ${machine}-linux-gnu-g++)

set(CMAKE_FIND_ROOT_PATH /usr/${machine}-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-${machine};-L;/usr/${machine}-linux-gnu")
