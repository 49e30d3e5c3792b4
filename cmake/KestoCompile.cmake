# Compile settings that every target of the project shares: link to kesto_compile.
add_library(kesto_compile INTERFACE)
target_compile_features(kesto_compile INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
target_include_directories(kesto_compile INTERFACE ${PROJECT_SOURCE_DIR})

# A fused multiply-add rounds once where the code rounds twice, and x87 arithmetic keeps
# excess precision: either would make the printed dots depend on the machine.
target_compile_options(kesto_compile INTERFACE -ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86_64|AMD64)$" AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_options(kesto_compile INTERFACE -msse2 -mfpmath=sse)
endif()

# What makes a fault in the code harder to use, wherever the code is built: checked stacks, sums and
# jumps, an address that changes with every start, and tables that nobody can write to.
include(CheckCXXCompilerFlag)
function(kesto_harden flag)
    string(MAKE_C_IDENTIFIER "KESTO_HAS${flag}" known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known})
        target_compile_options(kesto_compile INTERFACE ${flag})
    endif()
endfunction()
kesto_harden(-fstack-protector-strong)
kesto_harden(-fstack-clash-protection)
kesto_harden(-fcf-protection=full)
kesto_harden(-mbranch-protection=standard)
target_compile_options(kesto_compile INTERFACE -fPIE)
target_link_options(kesto_compile INTERFACE -pie LINKER:-z,relro LINKER:-z,now)
if(NOT KESTO_SANITIZE AND NOT KESTO_COVERAGE)
    # It needs an optimiser; tests are built without one.
    set(optimised $<AND:$<NOT:$<CONFIG:Debug>>,$<NOT:$<BOOL:$<TARGET_PROPERTY:KESTO_UNOPTIMISED>>>>)
    target_compile_options(kesto_compile INTERFACE
        $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=3>)
endif()

if(KESTO_DEVELOPER)
    target_compile_options(kesto_compile INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wformat=2
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wundef -Werror)
endif()

if(KESTO_SANITIZE)
    target_compile_options(kesto_compile INTERFACE
        -fsanitize=${KESTO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kesto_compile INTERFACE -fsanitize=${KESTO_SANITIZE})
    # Under the sanitizers g++ finds uninitialised members in the standard library's regex that
    # are none; the ordinary developer build keeps the warning.
    target_compile_options(kesto_compile INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

if(KESTO_FUZZ)
    # Everything is instrumented; what decides where inputs come from is linked to harnesses only.
    target_compile_options(kesto_compile INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(kesto_compile INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(KESTO_COVERAGE)
    target_compile_options(kesto_compile INTERFACE --coverage -O0)
    target_link_options(kesto_compile INTERFACE --coverage)
endif()

# Half of compiling a small file is the standard library's headers: they are compiled once. A file
# includes what it uses all the same: scripts/tidy compiles it without this.
file(CONFIGURE OUTPUT kesto_headers.cpp CONTENT "")
add_library(kesto_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/kesto_headers.cpp)
target_link_libraries(kesto_headers PRIVATE kesto_compile)
target_precompile_headers(kesto_headers PRIVATE
    <algorithm> <array> <charconv> <cstdint> <cstdio> <cstdlib> <cstring> <filesystem> <functional>
    <map> <memory> <optional> <span> <string> <string_view> <utility> <vector>)

# kesto_precompile_headers(FOLDER...): for the libraries and programs of these folders
function(kesto_precompile_headers)
    foreach(folder IN LISTS ARGN)
        get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            if(type MATCHES "^(STATIC_LIBRARY|EXECUTABLE)$")
                target_precompile_headers(${target} REUSE_FROM kesto_headers)
            endif()
        endforeach()
    endforeach()
endfunction()
