# Cross-compiles for 64-bit Windows with Debian's mingw-w64, and runs the programs it builds, tests
# included, under Wine. The compilers are the POSIX-threads flavour (g++-mingw-w64-x86-64-posix):
# the win32 flavour's C++ library has no std::mutex or std::thread, which GoogleTest needs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(mingw_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)

# Libraries and headers come from the mingw tree (zlib from libz-mingw-w64-dev) or are built from
# source; programs are the build machine's.
set(CMAKE_FIND_ROOT_PATH /usr/${mingw_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The runtime libraries are linked in, so a program or server needs no DLL beside it under Wine or
# Windows.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

find_program(VOS_WINE64 NAMES wine64 PATHS /usr/lib/wine NO_DEFAULT_PATH)
find_program(VOS_WINE64 NAMES wine64)
if(VOS_WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${VOS_WINE64})
endif()
