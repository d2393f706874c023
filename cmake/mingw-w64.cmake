# Cross-compiling to 64-bit Windows with mingw-w64; QF_MINGW_PREFIX may name a folder of libraries
# that were built for Windows, or a list of such folders (scripts/build-windows-libraries prints it).
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

# Qt's tools, such as the compiler of resources, are those of the system that builds.
set(QT_HOST_PATH "/usr" CACHE PATH "Where Qt's tools for the system that builds are installed")
file(GLOB qf_qt_tools "/usr/lib/*/cmake/Qt6HostInfo")
if(qf_qt_tools)
    list(GET qf_qt_tools 0 qf_qt_tools)
    cmake_path(GET qf_qt_tools PARENT_PATH qf_qt_tools)
    set(QT_HOST_PATH_CMAKE_DIR "${qf_qt_tools}" CACHE PATH "Where CMake finds them")
endif()

# Tests run under Wine, in a Windows of the build folder's own.
find_program(QF_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(QF_WINE)
    get_property(qf_trying GLOBAL PROPERTY IN_TRY_COMPILE)
    if(NOT qf_trying)
        set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/run-under-wine" "${CMAKE_BINARY_DIR}/wine" "${QF_WINE}")
    endif()
endif()
