# Builds for Windows on Debian, with package g++-mingw-w64-x86-64-posix (its threads are those of the standard
# library).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(LS_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${LS_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${LS_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${LS_MINGW}-windres)
set(CMAKE_AR ${LS_MINGW}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${LS_MINGW}-gcc-ranlib-posix CACHE FILEPATH "")

# Programs come from this system; libraries, headers and packages from the target system.
set(CMAKE_FIND_ROOT_PATH /usr/${LS_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
