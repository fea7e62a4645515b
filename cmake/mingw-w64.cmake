# Cross-builds the Windows program on Linux with MinGW-w64 (posix threads).
#
# WINDOWS_SDK (cache variable or environment) names the prefix with Qt and the other libraries for Windows; without it,
# .deps/winsdk is used, which scripts/install-deps.sh --windows fills.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

if(NOT WINDOWS_SDK)
    if(DEFINED ENV{WINDOWS_SDK})
        set(WINDOWS_SDK $ENV{WINDOWS_SDK})
    else()
        # Without "..": CMake compares this as a text with the places it searches.
        cmake_path(SET WINDOWS_SDK NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../.deps/winsdk)
    endif()
endif()
set(WINDOWS_SDK ${WINDOWS_SDK} CACHE PATH "Prefix with Qt and the other libraries for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WINDOWS_SDK)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${WINDOWS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_PREFIX_PATH ${WINDOWS_SDK}/qt ${WINDOWS_SDK})

# The host's Qt, of the same version, for moc and the like.
set(QT_HOST_PATH /usr CACHE PATH "Qt of the building machine")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "CMake packages of the building machine's Qt")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/run-in-wine.sh)
