# Builds 64-bit Windows programs on Linux, against the libraries of packaging/windows/build-sdk.

if(DEFINED ENV{XDG_CACHE_HOME})
  set(cache_folder $ENV{XDG_CACHE_HOME})
else()
  set(cache_folder $ENV{HOME}/.cache)
endif()
set(TARNWICK_WINDOWS_SDK ${cache_folder}/tarnwick-windows-sdk/sdk CACHE PATH
  "Where packaging/windows/build-sdk has put the libraries")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWICK_WINDOWS_SDK)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# So that ctest can run them.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tests/windows/wine)

set(CMAKE_FIND_ROOT_PATH ${TARNWICK_WINDOWS_SDK} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# No time stamp, so that the same sources give the same bytes.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections -Wl,--no-insert-timestamp")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT -s)
# Looking into the functions that are called, GCC 12 leaves out stores that they read through a pointer in a
# class: QByteArray::replace(char, QByteArray) then replaces nothing.
set(CMAKE_C_FLAGS_INIT "-ffunction-sections -fdata-sections -fno-ipa-modref")
set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections -fno-ipa-modref")
