# Cross build with Debian's cross compilers for one of the targets that
# SDL 1.2 handhelds run on. SDL, zlib, libpng and GoogleTest come from a
# sysroot folder that scripts/cross-sysroot.sh fills; programs built here
# run under qemu's user emulation, so ctest and gtest_discover_tests work as
# on the host.
#
#   cmake -S . -B build-mipsel -DCMAKE_TOOLCHAIN_FILE=cmake/cross-toolchain.cmake \
#         -DKVT_CROSS_TRIPLET=mipsel-linux-gnu
#
# KVT_CROSS_TRIPLET is the Debian triplet of the target:
#   arm-linux-gnueabihf   32-bit ARM, hard float     (build-armhf)
#   aarch64-linux-gnu     64-bit ARM                 (build-aarch64)
#   mipsel-linux-gnu      32-bit MIPS little-endian  (build-mipsel)
# KVT_CROSS_SYSROOT names another sysroot folder (default: the target's
# build folder's sysroot, beside this file's folder).
set(KVT_CROSS_TRIPLET "${KVT_CROSS_TRIPLET}" CACHE STRING
  "Debian triplet of the cross target: arm-linux-gnueabihf, aarch64-linux-gnu or mipsel-linux-gnu")

# The processor names are what uname -m reports on such a machine, except
# for MIPS, where it says "mips" for either byte order; the build looks at
# them to pick architecture flags. The short name is that of the build
# folder.
if(KVT_CROSS_TRIPLET STREQUAL "arm-linux-gnueabihf")
  set(CMAKE_SYSTEM_PROCESSOR armv7l)
  set(KVT_CROSS_NAME armhf)
  set(KVT_CROSS_QEMU qemu-arm-static)
elseif(KVT_CROSS_TRIPLET STREQUAL "aarch64-linux-gnu")
  set(CMAKE_SYSTEM_PROCESSOR aarch64)
  set(KVT_CROSS_NAME aarch64)
  set(KVT_CROSS_QEMU qemu-aarch64-static)
elseif(KVT_CROSS_TRIPLET STREQUAL "mipsel-linux-gnu")
  set(CMAKE_SYSTEM_PROCESSOR mipsel)
  set(KVT_CROSS_NAME mipsel)
  set(KVT_CROSS_QEMU qemu-mipsel-static)
else()
  message(FATAL_ERROR "KVT_CROSS_TRIPLET is \"${KVT_CROSS_TRIPLET}\"; "
    "give -DKVT_CROSS_TRIPLET=arm-linux-gnueabihf, aarch64-linux-gnu or mipsel-linux-gnu")
endif()
set(CMAKE_SYSTEM_NAME Linux)

set(CMAKE_C_COMPILER ${KVT_CROSS_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${KVT_CROSS_TRIPLET}-g++)

if(NOT KVT_CROSS_SYSROOT)
  get_filename_component(KVT_CROSS_SYSROOT
    "${CMAKE_CURRENT_LIST_DIR}/../build-${KVT_CROSS_NAME}/sysroot" ABSOLUTE)
endif()
# try_compile projects read this file again in a folder of their own; this
# hands them the same target and sysroot.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KVT_CROSS_TRIPLET KVT_CROSS_SYSROOT)

# The compiler finds the C and C++ runtimes by itself; only our own sysroot
# and the cross libc's folder are searched for libraries, headers and
# packages, never the host's /usr.
set(CMAKE_FIND_ROOT_PATH ${KVT_CROSS_SYSROOT} /usr/${KVT_CROSS_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# pkg-config must see the target's .pc files alone. Their prefix is the
# sysroot's own absolute path, so no PKG_CONFIG_SYSROOT_DIR rewriting is
# wanted.
set(ENV{PKG_CONFIG_LIBDIR} "${KVT_CROSS_SYSROOT}/lib/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "")
unset(ENV{PKG_CONFIG_SYSROOT_DIR})

# -L points the emulator's dynamic loader at the cross libc. The sysroot's
# libraries go on LD_LIBRARY_PATH as well: a program's RUNPATH finds only
# its own direct dependencies, not libpng's libz.
set(CMAKE_CROSSCOMPILING_EMULATOR
  ${KVT_CROSS_QEMU};-L;/usr/${KVT_CROSS_TRIPLET};-E;LD_LIBRARY_PATH=${KVT_CROSS_SYSROOT}/lib)
