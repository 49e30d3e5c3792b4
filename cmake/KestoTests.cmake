# How programs of tests are made. A folder of tests has in its CMakeLists.txt
#
#   kesto_test_program(sizes_test
#       LIBRARIES kesto_sizes
#       SOURCES
#       dot_grid_test.cpp
#       label_size_test.cpp)
#   kesto_discover_tests(sizes_test LABEL unit)
#
# and is named in tests/CMakeLists.txt.
include(GoogleTest)

# Tests gain little from an optimiser, and need no more debug information than lines. Only under an
# emulator they take longer without one than the optimiser.
add_library(kesto_test_compile INTERFACE)
target_link_libraries(kesto_test_compile INTERFACE kesto_compile GTest::gtest)
if(CMAKE_CROSSCOMPILING)
    target_compile_options(kesto_test_compile INTERFACE -O1 -g1)
else()
    target_compile_options(kesto_test_compile INTERFACE "$<$<CONFIG:RelWithDebInfo,Release>:-O0;-g1>")
endif()

# Nearly all of a build is tests, and most of a test is the headers of GoogleTest and the standard
# library: compiled once, here, they leave a third of the time. A test includes what it uses all
# the same: scripts/tidy compiles it without this.
file(CONFIGURE OUTPUT kesto_test_headers.cpp CONTENT "")
add_library(kesto_test_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/kesto_test_headers.cpp)
target_link_libraries(kesto_test_headers PRIVATE kesto_test_compile)
set_target_properties(kesto_test_headers PROPERTIES KESTO_UNOPTIMISED ON)
target_precompile_headers(kesto_test_headers PRIVATE
    <gtest/gtest.h>
    <algorithm> <array> <cstdint> <cstdio> <cstdlib> <cstring> <filesystem> <fstream> <functional>
    <map> <memory> <numeric> <optional> <ostream> <regex> <set> <span> <sstream> <stdexcept> <string>
    <string_view> <utility> <vector>)

# kesto_test_sources(TARGET): compiles the sources of a target as those of tests
function(kesto_test_sources target)
    target_link_libraries(${target} PRIVATE kesto_test_compile)
    set_target_properties(${target} PROPERTIES KESTO_UNOPTIMISED ON)
    target_precompile_headers(${target} REUSE_FROM kesto_test_headers)
endfunction()

# kesto_test_program(NAME [LIBRARIES LIBRARY...] SOURCES FILE...)
function(kesto_test_program name)
    cmake_parse_arguments(PARSE_ARGV 1 program "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${program_SOURCES})
    target_link_libraries(${name} PRIVATE ${program_LIBRARIES} GTest::gtest_main)
    kesto_test_sources(${name})
endfunction()

# Tests that start the filter or print a page write to folders that all processes share, under names
# that change by the second only, so they run one at a time. Those that take long run with folders of
# their own where mount namespaces are to be had, which is as root: COMMAND ${KESTO_OWN_FOLDERS} ...
# PROPERTIES ${KESTO_SPOOL_LOCK} does it for a test, OWN_FOLDERS below for a whole program. For a short
# one that would take longer than its turn.
execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tests/support/own_folders ${PROJECT_SOURCE_DIR} true
    RESULT_VARIABLE no_own_folders OUTPUT_QUIET ERROR_QUIET)
if(no_own_folders)
    message(STATUS "No folders of their own: tests that print run one at a time")
    set(KESTO_OWN_FOLDERS "")
    set(KESTO_SPOOL_LOCK RESOURCE_LOCK spool)
else()
    set(KESTO_OWN_FOLDERS ${PROJECT_SOURCE_DIR}/tests/support/own_folders ${PROJECT_SOURCE_DIR})
    set(KESTO_SPOOL_LOCK "")
endif()

# kesto_discover_tests(NAME LABEL LABEL [SPOOL | OWN_FOLDERS] [OPTION...]): makes a test of CTest of
# every test in a program. SPOOL is for those that start the filter or print a page. What else is given
# goes to gtest_discover_tests. For another processor a whole program is one test, and under the sanitizers
# one of unit tests is: starting it for each of hundreds takes longer than what they do.
function(kesto_discover_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 tests "SPOOL;OWN_FOLDERS" "LABEL" "PROPERTIES")
    if(tests_SPOOL)
        list(APPEND tests_PROPERTIES RESOURCE_LOCK spool)
    endif()
    if(CMAKE_CROSSCOMPILING OR (KESTO_SANITIZE AND tests_LABEL STREQUAL "unit"))
        add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
        set_tests_properties(${name}
            PROPERTIES LABELS ${tests_LABEL} TIMEOUT 1200 ${tests_PROPERTIES})
        return()
    endif()
    if(tests_OWN_FOLDERS)
        list(APPEND tests_PROPERTIES ${KESTO_SPOOL_LOCK})
        # What this version of CMake puts in front of a program that is a test.
        set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${KESTO_OWN_FOLDERS}")
    endif()
    gtest_discover_tests(${name} ${tests_UNPARSED_ARGUMENTS} DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS ${tests_LABEL} TIMEOUT 300 ${tests_PROPERTIES})
endfunction()

# kesto_emulate_level(PROGRAM LEVEL): runs the tests of a program by an emulator where this machine has no
# processor of the level
function(kesto_emulate_level program level)
    if(level STREQUAL Avx2 AND NOT KESTO_HAS_AVX2)
        find_program(KESTO_QEMU_X86_64 qemu-x86_64 REQUIRED)
        set_target_properties(${program} PROPERTIES
            CROSSCOMPILING_EMULATOR "${KESTO_QEMU_X86_64};-cpu;max")
    endif()
endfunction()

# kesto_test_kernels(NAME LIBRARY OBJECTS [OPTION...]): tests that compare the kernels of a library with the
# reference, once for every level of the processor. OPTIONs are those of kesto_discover_tests.
function(kesto_test_kernels name library objects)
    set(levels ${kesto_levels})
    if(KESTO_SANITIZE)
        # The widest, which reaches furthest: each takes minutes to compile.
        list(GET kesto_levels -1 levels)
    endif()
    foreach(level IN LISTS levels)
        string(TOLOWER ${name}_${level} program)
        kesto_library_at_level(${program}_library ${library} ${level})
        kesto_test_program(${program}
            LIBRARIES ${program}_library kesto_reference
            SOURCES $<TARGET_OBJECTS:${objects}>)
        kesto_emulate_level(${program} ${level})
        kesto_discover_tests(${program} LABEL unit TEST_PREFIX ${level}. ${ARGN})
    endforeach()
endfunction()
