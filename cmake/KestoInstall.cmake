# Where the parts are installed. CUPS runs only filters in its own folder, and finds queue
# descriptions only in its own data folder, so both follow cups-config whatever the prefix is.
include(GNUInstallDirs)

set(programs PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(TARGETS documenttokestotspl pdftokestolabels picturetokestolabel rastertokestocontent
    rastertokestotspl
    DESTINATION ${KESTO_CUPS_SERVERBIN}/filter ${programs})
install(TARGETS tsplstatus DESTINATION ${KESTO_CUPS_SERVERBIN}/monitor ${programs})
install(TARGETS tsplpreview kesto-tspl-size DESTINATION ${CMAKE_INSTALL_BINDIR} ${programs})
install(PROGRAMS packaging/kesto-tspl-clean DESTINATION ${CMAKE_INSTALL_SBINDIR})
install(FILES ppd/kesto-tspl.drv DESTINATION ${KESTO_CUPS_DATADIR}/drv)
# What a description includes lies here; in the folder above everything counts as a description.
install(FILES ppd/kesto-tspl-de.po DESTINATION ${KESTO_CUPS_DATADIR}/ppdc)
install(FILES packaging/kesto-tspl.types packaging/kesto-tspl.convs
    DESTINATION ${KESTO_CUPS_DATADIR}/mime)
install(FILES packaging/printer-driver-kesto-tspl.ppd-updater
    DESTINATION ${KESTO_CUPS_DATADIR}/ppd-updaters)
install(FILES docs/man/tsplpreview.1 docs/man/kesto-tspl-size.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES docs/man/documenttokestotspl.8 docs/man/kesto-tspl-clean.8
    docs/man/pdftokestolabels.8 docs/man/picturetokestolabel.8 docs/man/rastertokestocontent.8
    docs/man/rastertokestotspl.8 docs/man/tsplstatus.8
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man8)
install(FILES packaging/org.kesto.kesto_tspl.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
