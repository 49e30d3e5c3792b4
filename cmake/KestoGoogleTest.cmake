# GoogleTest as the targets GTest::gtest and GTest::gtest_main. Distributions ship it compiled for their
# own processor only, and its sources for all others.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest REQUIRED)
    return()
endif()

find_path(KESTO_GOOGLETEST_SOURCE src/gtest-all.cc HINTS /usr/src/googletest/googletest
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
add_library(kesto_gtest STATIC
    ${KESTO_GOOGLETEST_SOURCE}/src/gtest-all.cc ${KESTO_GOOGLETEST_SOURCE}/src/gtest_main.cc)
target_include_directories(kesto_gtest SYSTEM PUBLIC ${KESTO_GOOGLETEST_SOURCE}/include)
target_include_directories(kesto_gtest PRIVATE ${KESTO_GOOGLETEST_SOURCE})
target_compile_features(kesto_gtest PUBLIC cxx_std_20)
set_target_properties(kesto_gtest PROPERTIES POSITION_INDEPENDENT_CODE ON)
add_library(GTest::gtest ALIAS kesto_gtest)
add_library(GTest::gtest_main ALIAS kesto_gtest)
