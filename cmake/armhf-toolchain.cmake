# Cross build for 32-bit ARM (armhf) with Debian's arm-linux-gnueabihf
# compilers. SDL, zlib, libpng and GoogleTest come from a sysroot folder that
# scripts/armhf-sysroot.sh fills; programs built here run under qemu's user
# emulation, so ctest and gtest_discover_tests work as on the host.
#
#   cmake -S . -B build-armhf -DCMAKE_TOOLCHAIN_FILE=cmake/armhf-toolchain.cmake
#
# KVT_ARMHF_SYSROOT names another sysroot folder (default: build-armhf/sysroot
# beside this file's folder).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)

set(KVT_ARMHF_TRIPLET arm-linux-gnueabihf)
set(CMAKE_C_COMPILER ${KVT_ARMHF_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${KVT_ARMHF_TRIPLET}-g++)

if(NOT KVT_ARMHF_SYSROOT)
  get_filename_component(KVT_ARMHF_SYSROOT "${CMAKE_CURRENT_LIST_DIR}/../build-armhf/sysroot" ABSOLUTE)
endif()
# try_compile projects read this file again in a folder of their own; this
# hands them the same sysroot.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KVT_ARMHF_SYSROOT)

# The compiler finds the C and C++ runtimes by itself; only our own sysroot
# and the cross libc's folder are searched for libraries, headers and
# packages, never the host's /usr.
set(CMAKE_FIND_ROOT_PATH ${KVT_ARMHF_SYSROOT} /usr/${KVT_ARMHF_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# pkg-config must see the ARM .pc files alone. Their prefix is the sysroot's
# own absolute path, so no PKG_CONFIG_SYSROOT_DIR rewriting is wanted.
set(ENV{PKG_CONFIG_LIBDIR} "${KVT_ARMHF_SYSROOT}/lib/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "")
unset(ENV{PKG_CONFIG_SYSROOT_DIR})

# -L points the emulator's dynamic loader at the cross libc. The sysroot's
# libraries go on LD_LIBRARY_PATH as well: a program's RUNPATH finds only
# its own direct dependencies, not libpng's libz.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static;-L;/usr/${KVT_ARMHF_TRIPLET};-E;LD_LIBRARY_PATH=${KVT_ARMHF_SYSROOT}/lib)
