# Builds for another processor with Debian's cross compilers, and runs what it built under QEMU.
# KESTO_TRIPLET names the processor as the compilers do, for example aarch64-linux-gnu.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTO_TRIPLET)
string(REGEX MATCH "^[^-]+" processor "${KESTO_TRIPLET}")

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${processor})
set(CMAKE_CXX_COMPILER ${KESTO_TRIPLET}-g++)
# The other compiler of the tests: clang builds for every processor. On x86 of 32 bits it takes the
# arithmetic with excess precision unless it is told not to, as KestoCompile tells the first one.
set(other_cxx clang++ --target=${KESTO_TRIPLET})
if(processor STREQUAL "i686")
    list(APPEND other_cxx -msse2 -mfpmath=sse)
endif()
set(KESTO_OTHER_CXX ${other_cxx} CACHE STRING "Compiler and options")

# QEMU names the whole family of a processor after its first member.
string(REGEX REPLACE "^i.86$" "i386" emulated "${processor}")
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${emulated} -L /usr/${KESTO_TRIPLET})
