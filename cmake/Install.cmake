# What `cmake --install` puts where: the programs in bin/, the user guide and
# the message catalogue under share/flowloom/ (the programs look there, beside
# bin/, when their own folder has none), and for the designer a desktop entry
# with its icon.
include(GNUInstallDirs)

if(TARGET flowloom-cli)
  install(TARGETS flowloom-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${CMAKE_INSTALL_DATADIR}/flowloom/help)
install(FILES ${PROJECT_SOURCE_DIR}/data/messages.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/flowloom OPTIONAL)

if(TARGET flowloom)
  install(TARGETS flowloom RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(TARGETS markuploom RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})  # found beside the designer
  install(FILES ${PROJECT_SOURCE_DIR}/data/flowloom.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/src/designer/resources/ICON/process.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/48x48/apps RENAME flowloom.png)
  install(FILES ${PROJECT_SOURCE_DIR}/data/flowloom.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
