# What every target of the tree shares: the language, the warnings, the sanitizers; and the functions
# with which a folder declares its libraries.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(QF_CCACHE ccache)
if(QF_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${QF_CCACHE}")
endif()

add_library(qf_options INTERFACE)
target_include_directories(qf_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(qf_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 warns of an overlap that cannot be where a literal is put in front of a string (its bug 105651).
    target_compile_options(qf_options INTERFACE -Wno-restrict)
endif()
if(QF_SANITIZE)
    target_compile_options(qf_options INTERFACE -fsanitize=${QF_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(qf_options INTERFACE -fsanitize=${QF_SANITIZE})
endif()
if(QF_FUZZ)
    target_compile_options(qf_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(QF_COVERAGE)
    # Counted at the source, so that the branches are those that are written and not those that exceptions make.
    target_compile_options(qf_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(qf_options INTERFACE -fprofile-instr-generate)
endif()
if(QF_HARDEN)
    target_compile_definitions(qf_options INTERFACE _FORTIFY_SOURCE=2)
    target_compile_options(qf_options INTERFACE -fstack-protector-strong -Wformat -Werror=format-security)
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
        target_compile_options(qf_options INTERFACE -fstack-clash-protection)
        target_link_options(qf_options INTERFACE -Wl,-z,relro -Wl,-z,now)
    endif()
endif()
if(MINGW)
    target_compile_definitions(qf_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
    target_link_options(qf_options INTERFACE -static)
endif()

# qf_pure_library(NAME SOURCES ... [LINKS ...]): a library without Qt. Its include path holds no Qt header,
# so that a slip does not compile.
function(qf_pure_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC qf_options ${arg_LINKS})
    target_compile_options(${name} PRIVATE ${QF_PURE_OPTIONS})
endfunction()

# qf_panel_library(NAME SOURCES ... [LINKS ...]): a library of panels or of their parts.
function(qf_panel_library name)
    set(QF_PURE_OPTIONS "")
    qf_pure_library(${name} ${ARGN})
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
    target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
endfunction()

# qf_offscreen(NAME): a program that can show its windows nowhere. Where Qt is linked as it stands, its platforms
# have to be named; elsewhere they are files that it finds by itself.
function(qf_offscreen name)
    if(TARGET Qt6::QOffscreenIntegrationPlugin)
        qt_import_plugins(${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
    endif()
endfunction()

# qf_test(NAME SOURCES ... [LINKS ...]): a GoogleTest program, each of its cases a test of CTest. Under Wine the
# program is one test: each start of it costs about as much as all its cases.
function(qf_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE qf_options qf_test_support ${arg_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
    if("Qt6::Test" IN_LIST arg_LINKS)
        qf_offscreen(${name})
    endif()
    qf_add_tests(${name} 120)
endfunction()

# qf_panel_test(NAME SOURCES ... [LINKS ...]): the same for a program that shows panels, which takes longer.
function(qf_panel_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${arg_SOURCES} "${CMAKE_SOURCE_DIR}/tests/support/qt_test_main.cpp")
    target_link_libraries(${name} PRIVATE
        qf_test_support qf_app qf_client_simulated qf_world ${arg_LINKS} GTest::gtest GTest::gmock
    )
    qf_offscreen(${name})
    qf_add_tests(${name} 600 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# qf_add_tests(NAME SECONDS [PROPERTY VALUE...]): the cases of a test program as tests of CTest.
function(qf_add_tests name seconds)
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT 600 ${ARGN})
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${seconds} ${ARGN})
    endif()
endfunction()
