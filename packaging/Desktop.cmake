# What a desktop system wants to know of the programs: menu entry, icon, description, manual pages.
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/acs-client.desktop DESTINATION share/applications)
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/acs-client.metainfo.xml DESTINATION share/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/Skin/theme1/app.png
    DESTINATION share/icons/hicolor/256x256/apps RENAME acs-client.png)
install(FILES ${CMAKE_SOURCE_DIR}/Skin/theme1/app.svg
    DESTINATION share/icons/hicolor/scalable/apps RENAME acs-client.svg)

find_program(GZIP_PROGRAM gzip REQUIRED)
# acs_install_compressed(SOURCE NAME DESTINATION COMPONENT): without name and time, so that it is the same each time.
function(acs_install_compressed source name destination component)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/${component}
        COMMAND ${GZIP_PROGRAM} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/${source} > ${compressed}
        DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${source} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY ACS_COMPRESSED_FILES ${compressed})
    install(FILES ${compressed} DESTINATION ${destination} COMPONENT ${component})
endfunction()
acs_install_compressed(acs-client.1 acs-client.1 share/man/man1 client)
acs_install_compressed(acs-scheme.1 acs-scheme.1 share/man/man1 client)
