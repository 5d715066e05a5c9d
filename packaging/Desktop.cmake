# What a desktop system wants to know of the programs: menu entry, icon, description, manual pages.
set(ACS_RELEASE_DATE 2026-11-21)

install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/acs-client.desktop DESTINATION share/applications)
configure_file(acs-client.metainfo.xml.in acs-client.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/acs-client.metainfo.xml DESTINATION share/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/Skin/theme1/app.png
    DESTINATION share/icons/hicolor/256x256/apps RENAME acs-client.png)
install(FILES ${CMAKE_SOURCE_DIR}/Skin/theme1/app.svg
    DESTINATION share/icons/hicolor/scalable/apps RENAME acs-client.svg)

find_program(AWK_PROGRAM awk REQUIRED)
find_program(GZIP_PROGRAM gzip REQUIRED)
# acs_install_compressed(SOURCE NAME DESTINATION COMPONENT): without name and time, so that it is the same each time.
function(acs_install_compressed source name destination component)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/${component}
        COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${compressed}
        DEPENDS ${source} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY ACS_COMPRESSED_FILES ${compressed})
    install(FILES ${compressed} DESTINATION ${destination} COMPONENT ${component})
endfunction()

# The manual page of the command line says what docs/ says of it.
configure_file(acs-client.1.in acs-client.1 @ONLY)
configure_file(acs-scheme.1.in acs-scheme.head @ONLY)
set(body ${CMAKE_SOURCE_DIR}/docs/acs-scheme.md)
add_custom_command(OUTPUT acs-scheme.1
    COMMAND ${AWK_PROGRAM} -v see=acs-client -f ${CMAKE_CURRENT_SOURCE_DIR}/manual_page.awk ${body} > acs-scheme.body
    COMMAND ${CMAKE_COMMAND} -E cat acs-scheme.head acs-scheme.body > acs-scheme.1
    DEPENDS manual_page.awk ${body} ${CMAKE_CURRENT_BINARY_DIR}/acs-scheme.head VERBATIM)
foreach(program acs-client acs-scheme)
    acs_install_compressed(${CMAKE_CURRENT_BINARY_DIR}/${program}.1 ${program}.1 share/man/man1 client)
endforeach()
