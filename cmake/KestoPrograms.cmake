# Everything but the libraries of pixels: what needs CUPS or other libraries, and what uses it.
include(KestoCups)

add_subdirectory(sizes)
add_subdirectory(driver)
add_subdirectory(filter)
add_subdirectory(intake)
add_subdirectory(ppd)
add_subdirectory(tspl)
add_subdirectory(preview)
add_subdirectory(status)
# With headers compiled before, g++ 12 warns of its own library's strings.
if(NOT KESTO_DEVELOPER OR CMAKE_CXX_COMPILER_ID MATCHES Clang)
    kesto_precompile_headers(sizes image enhance driver filter intake intake/content intake/picture preview status tspl)
endif()
include(KestoInstall)
