# The oldest compilers that the project is tried with. Older ones would fail in the middle of a build, or
# worse, not fail.
set(oldest_GNU 12)
set(oldest_Clang 14)
set(name_GNU g++)
set(name_Clang clang++)

set(oldest ${oldest_${CMAKE_CXX_COMPILER_ID}})
if(oldest AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS oldest)
    message(FATAL_ERROR "${name_${CMAKE_CXX_COMPILER_ID}} ${CMAKE_CXX_COMPILER_VERSION} is too old: "
        "${PROJECT_NAME} needs g++ ${oldest_GNU} or clang ${oldest_Clang}, or newer ones.")
endif()
