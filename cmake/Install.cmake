# What an installed Tarnwick consists of. Packages are made of what this installs, and of nothing else.

include(GNUInstallDirs)

set(linux_folder ${CMAKE_SOURCE_DIR}/packaging/linux)

# The releases in the AppStream description are those of the change log.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/CHANGELOG.md ${linux_folder}/release-notes.awk)
execute_process(
  COMMAND awk -f ${linux_folder}/release-notes.awk ${CMAKE_SOURCE_DIR}/CHANGELOG.md
  OUTPUT_VARIABLE TARNWICK_RELEASES
  COMMAND_ERROR_IS_FATAL ANY)
configure_file(${linux_folder}/org.example.tarnwick.metainfo.xml.in
  org.example.tarnwick.metainfo.xml @ONLY)

install(TARGETS tarnwick tarnwick-device tarnwick-run)
install(FILES ${linux_folder}/tarnwick.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/org.example.tarnwick.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(program tarnwick-device tarnwick-run)
  install(FILES ${linux_folder}/${program}.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME ${program})
endforeach()
# udev looks there below /usr and below /usr/local, whatever the folder of libraries is called.
install(FILES ${linux_folder}/70-tarnwick.rules DESTINATION lib/udev/rules.d)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${CMAKE_SOURCE_DIR}/resources/svg/tarnwick.svg DESTINATION ${icons}/scalable/apps)
foreach(size 48 128 256)
  install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/${size}.png
    DESTINATION ${icons}/${size}x${size}/apps
    RENAME tarnwick.png)
endforeach()

install(FILES docs/man/tarnwick.1 docs/man/tarnwick-device.1 docs/man/tarnwick-run.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# The program looks for them there; documentation may be left out of an installation.
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/tarnwick)
install(FILES packaging/wireshark/tarnwick.lua
  DESTINATION ${CMAKE_INSTALL_DATADIR}/tarnwick/wireshark)
install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install_guide(${CMAKE_INSTALL_DOCDIR})
