# The files that `cmake --install` installs: the program, and the files by which a desktop knows it. The Debian package
# has the same files, but Debian's form of the licence and the manual; see Package.cmake.
include(GNUInstallDirs)
set(documents "${CMAKE_INSTALL_DATAROOTDIR}/doc/tavrelkin")

set(data "${CMAKE_SOURCE_DIR}/data")
set(icons "${data}/icons")

install(TARGETS tavrelkin COMPONENT program)
install(TARGETS tavrelkin_wayland DESTINATION "${CMAKE_INSTALL_LIBDIR}/tavrelkin" COMPONENT program)
install(FILES "${data}/tavrelkin.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT program)
install(FILES "${data}/org.tavrelkin.tavrelkin.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo"
  COMPONENT program)

set(icon_theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${icons}/tavrelkin.svg" DESTINATION "${icon_theme}/scalable/apps" COMPONENT program)
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
  install(FILES "${icons}/tavrelkin-${size}.png" DESTINATION "${icon_theme}/${size}x${size}/apps"
    RENAME tavrelkin.png COMPONENT program)
endforeach()

install(FILES "${data}/tavrelkin.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT documents)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION "${documents}" COMPONENT documents)
