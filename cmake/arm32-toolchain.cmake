# The device's architecture: Debian's compiler for it, its libraries as scripts/sysroot-arm32 unpacks
# them, and an emulated processor for what is built.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)

# TARN_SYSROOT reaches the compiler's own checks too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARN_SYSROOT)
if(NOT TARN_SYSROOT)
  set(TARN_SYSROOT ${CMAKE_BINARY_DIR}/sysroot)
endif()
set(CMAKE_SYSROOT ${TARN_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_DIR})
set(ENV{PKG_CONFIG_LIBDIR} ${TARN_SYSROOT}/usr/lib/arm-linux-gnueabihf/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${TARN_SYSROOT})

# No notes about what older compilers passed in another way.
set(CMAKE_CXX_FLAGS_INIT "-Wno-psabi")

# The platform's libraries need others from folders that they don't name themselves.
set(libraries ${TARN_SYSROOT}/usr/lib/arm-linux-gnueabihf/android ${TARN_SYSROOT}/usr/lib/p7zip)
list(JOIN libraries ":" libraries)

# Everything linked names all that it needs, as the device's build demands. What this build's own
# libraries need of each other has to be named too: with a sysroot, -rpath leads into that.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--no-undefined -Wl,-rpath-link,${libraries}:${CMAKE_BINARY_DIR}/lib")
set(CMAKE_SHARED_LINKER_FLAGS_INIT ${CMAKE_EXE_LINKER_FLAGS_INIT})

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L ${TARN_SYSROOT} -E LD_LIBRARY_PATH=${libraries})
