# Cross-compiling for 64-bit Windows with mingw-w64 on Debian. The posix
# threads variant of the compiler: the win32 one has no std::thread or
# std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(JEERBOX_MINGW_TRIPLET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${JEERBOX_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${JEERBOX_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${JEERBOX_MINGW_TRIPLET}-windres)

# Libraries and headers come from the mingw tree only; programs (windres,
# ImageMagick, the host's jeer) from the build machine.
set(CMAKE_FIND_ROOT_PATH /usr/${JEERBOX_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
