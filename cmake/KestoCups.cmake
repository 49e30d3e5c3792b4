# libcups and libcupsimage as the targets kesto_cups and kesto_cupsimage.
find_path(CUPS_INCLUDE_DIR cups/raster.h REQUIRED)
find_library(CUPS_LIBRARY cups REQUIRED)
find_library(CUPSIMAGE_LIBRARY cupsimage REQUIRED)

add_library(kesto_cups INTERFACE)
target_include_directories(kesto_cups SYSTEM INTERFACE ${CUPS_INCLUDE_DIR})
target_link_libraries(kesto_cups INTERFACE ${CUPS_LIBRARY})

add_library(kesto_cupsimage INTERFACE)
target_link_libraries(kesto_cupsimage INTERFACE ${CUPSIMAGE_LIBRARY} kesto_cups)

# CUPS marks its whole PPD interface as deprecated, and a driver with queue descriptions cannot
# do without it: only the files named here may call it.
function(kesto_uses_ppd_interface)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -Wno-deprecated-declarations)
endfunction()

# Where CUPS keeps its programs and its data.
find_program(CUPS_CONFIG cups-config)

function(kesto_ask_cups variable option fallback text)
    set(answer ${fallback})
    if(CUPS_CONFIG)
        execute_process(COMMAND ${CUPS_CONFIG} ${option}
            OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    endif()
    set(${variable} ${answer} CACHE PATH ${text})
endfunction()

kesto_ask_cups(KESTO_CUPS_SERVERBIN --serverbin /usr/lib/cups "CUPS's folder of programs")
kesto_ask_cups(KESTO_CUPS_DATADIR --datadir /usr/share/cups "CUPS's folder of data")
