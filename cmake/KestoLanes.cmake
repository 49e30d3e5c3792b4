# Levels of the processor that kernels are compiled for, from one text each. A file of kernels defines
# its table for the level that it is compiled for, LANES_LEVEL; the program takes the best one when it
# starts. No other file is compiled for more than every processor of the architecture can do.
set(kesto_levels Plain Baseline)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$" AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    list(APPEND kesto_levels Avx2)
endif()
# Plain is the baseline without the processor's own operations.
set(kesto_options_of_Plain -DLANES_PLAIN)
set(kesto_options_of_Baseline -DLANES_LEVEL=Baseline)
set(kesto_options_of_Avx2 -mavx2 -mfma -DLANES_LEVEL=Avx2)

# Whether this machine can run the tests of that level.
set(KESTO_HAS_AVX2 FALSE)
if(EXISTS /proc/cpuinfo)
    file(READ /proc/cpuinfo processor LIMIT 8192)
    if(processor MATCHES " fma " AND processor MATCHES " avx2 ")
        set(KESTO_HAS_AVX2 TRUE)
    endif()
endif()

# Kernels are inlined whole: with checks for undefined behaviour at every operation a file of them takes
# minutes to compile. They keep those for addresses.
if(KESTO_SANITIZE MATCHES undefined)
    set(kesto_unchecked -fno-sanitize=undefined)
endif()

# kesto_kernels(LIBRARY FILE...): adds files of kernels to a library, compiled once for every level
# that the program can take
function(kesto_kernels library)
    target_sources(${library} PRIVATE ${ARGN})
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS "${kesto_unchecked}")
    target_link_libraries(${library} PUBLIC kesto_lanes)
    if(Avx2 IN_LIST kesto_levels)
        add_library(${library}_avx2 OBJECT ${ARGN})
        target_link_libraries(${library}_avx2 PRIVATE kesto_compile)
        # Without an optimiser functions are not inlined that others have by the same names.
        target_compile_options(${library}_avx2 PRIVATE ${kesto_options_of_Avx2} $<$<CONFIG:Debug>:-O2>)
        target_sources(${library} PRIVATE $<TARGET_OBJECTS:${library}_avx2>)
    endif()
endfunction()

# kesto_sources_of(VARIABLE LIBRARY): the files of a library that has kernels, each once, and of what
# it takes them by
function(kesto_sources_of variable library)
    get_target_property(sources ${library} SOURCES)
    get_target_property(folder ${library} SOURCE_DIR)
    list(FILTER sources EXCLUDE REGEX "TARGET_OBJECTS")
    list(TRANSFORM sources PREPEND ${folder}/)
    set(${variable} ${sources} ${PROJECT_SOURCE_DIR}/lanes/choice.cpp PARENT_SCOPE)
endfunction()

# kesto_library_at_level(NAME LIBRARY LEVEL): a library once more, all of it compiled for one level
function(kesto_library_at_level name library level)
    kesto_sources_of(sources ${library})
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC kesto_compile)
    target_compile_options(${name} PRIVATE ${kesto_options_of_${level}} ${kesto_unchecked})
    # In one piece, which takes half of the time.
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
endfunction()
