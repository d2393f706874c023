# Cross-compiling to 64-bit Windows with mingw-w64; QF_MINGW_PREFIX may name a folder of libraries
# that were built for Windows (scripts/build-windows-libraries prints it).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QF_MINGW_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${QF_MINGW_PREFIX} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Tests run under Wine, in a Windows of the build folder's own.
find_program(QF_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(QF_WINE)
    get_property(qf_trying GLOBAL PROPERTY IN_TRY_COMPILE)
    if(NOT qf_trying)
        set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/run-under-wine" "${CMAKE_BINARY_DIR}/wine" "${QF_WINE}")
    endif()
endif()
