# What `cmake --install` places; included after the targets exist. On Windows scripts/build-windows assembles a folder
# that runs as it stands, so there is nothing to install.
include(GNUInstallDirs)
if(NOT WIN32)
    set(packaging ${CMAKE_SOURCE_DIR}/packaging)
    install(TARGETS vorlindesk RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    if(FFMPEG_PROGRAM) # looked for beside the program
        install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ffmpeg.dll DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
    # udev reads lib/udev/rules.d, whatever the library folder of the architecture is called.
    install(FILES ${packaging}/linux/70-vorlindesk.rules DESTINATION lib/udev/rules.d)
    install(FILES ${packaging}/linux/vorlindesk.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
    install(FILES ${packaging}/vorlindesk.svg DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps)
endif()
