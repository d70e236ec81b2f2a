# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT

get_filename_component(VELMORA_ROOT ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)

# Programs that are loaded at a random address, whatever the compiler's default is.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Flags that every target of the project is built with.
add_library(velmora-flags INTERFACE)
target_compile_options(velmora-flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Werror
    # The logging macros of Qt are called without further arguments, which C++20 allows.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
target_compile_definitions(velmora-flags INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_STRICT_ITERATORS
    QT_USE_QSTRINGBUILDER
    VELMORA_VERSION="${PROJECT_VERSION}")

# What ships is hardened as Debian's own packages are.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(velmora-flags INTERFACE
        -fstack-protector-strong -fstack-clash-protection -Wformat-security
        $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection>)
    target_compile_definitions(velmora-flags INTERFACE _FORTIFY_SOURCE=2)
    target_link_options(velmora-flags INTERFACE LINKER:-z,relro,-z,now)
endif()

if(VELMORA_SANITIZE)
    target_compile_options(velmora-flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velmora-flags INTERFACE -fsanitize=address,undefined)
endif()
if(VELMORA_FUZZ)
    target_compile_options(velmora-flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# velmora_library(NAME SOURCES file... USES target...)
# One room: a static library that may include from itself and from the rooms it USES.
# Sources are included by their path below src/, e.g. "link/SimpleCrypt.h".
function(velmora_library name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;USES")
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${VELMORA_ROOT}/src)
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE velmora-flags)
endfunction()

# velmora_test(NAME [SOURCES file...] USES target... [ADDRESS 127.0.0.N])
# A Qt Test program whose main source is NAME.cpp. It runs on the offscreen platform with a temporary folder
# of its own and, if it talks over the network, the loopback address given here, so that tests run side by side.
function(velmora_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "ADDRESS" "SOURCES;USES")
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${VELMORA_ROOT}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_USES} Qt5::Test velmora-flags)
    target_compile_definitions(${name} PRIVATE VELMORA_TEST_DATA="${VELMORA_ROOT}/tests/data")
    set(folder ${CMAKE_BINARY_DIR}/tests-tmp/${name})
    file(MAKE_DIRECTORY ${folder})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TMPDIR=${folder};HOME=${folder};LC_ALL=C.UTF-8;LANGUAGE=;VELMORA_TEST_ADDRESS=${ARG_ADDRESS};VELMORA_CONTROL_PANEL_INI=${folder}/control_panel.ini;ASAN_OPTIONS=detect_leaks=1;LSAN_OPTIONS=suppressions=${VELMORA_ROOT}/tests/lsan.supp;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# velmora_fuzz(NAME USES target...)
# A fuzz target whose entry function stands in NAME.cpp. With VELMORA_FUZZ it is a libFuzzer program; in every other
# build a test of the same name gives it the files of corpus/NAME, of which there must be some.
function(velmora_fuzz name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "USES")
    set(corpus ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name})
    add_executable(${name} ${name}.cpp)
    target_include_directories(${name} PRIVATE ${VELMORA_ROOT}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_USES} velmora-flags)
    add_dependencies(velmora-fuzz ${name})
    if(VELMORA_FUZZ)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        return()
    endif()
    target_sources(${name} PRIVATE ReplayMain.cpp)
    add_test(NAME ${name} COMMAND ${name} ${corpus})
    set_tests_properties(${name} PROPERTIES TIMEOUT 60
        ENVIRONMENT "LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${VELMORA_ROOT}/tests/lsan.supp;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
