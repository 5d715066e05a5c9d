# The Debian packages: "acs-client" for people, "acs-client-dev" for authors of pages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME acs-client)
set(CPACK_PACKAGE_VENDOR "Alarm Scheme Client developers")
set(CPACK_PACKAGE_CONTACT "Alarm Scheme Client developers <developers@acs-client.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL client kit)
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/bin)

set(CPACK_DEBIAN_CLIENT_PACKAGE_NAME acs-client)
set(CPACK_DEBIAN_CLIENT_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_CLIENT_PACKAGE_SHLIBDEPS ON)
# The first line is the summary; CPack indents the rest.
set(CPACK_COMPONENT_CLIENT_DESCRIPTION "client for configuring the alarm schemes of a site
An operator says, for every door, access controller and alarm input of a site
and for every type of event, what happens when the event occurs: whether the
alarm scheme is on, who is told, which alarm outputs switch on and for how
long, and in which hours of the week the scheme is armed.

The package holds the client, its configuration page and acs-scheme, the
command line for sites and schemes.")
if(ACS_QT EQUAL 6)
    set(CPACK_DEBIAN_CLIENT_PACKAGE_RECOMMENDS "fonts-noto-cjk, qt6-translations-l10n")
    set(kit_qt "qt6-base-dev")
else()
    set(CPACK_DEBIAN_CLIENT_PACKAGE_RECOMMENDS "fonts-noto-cjk, qttranslations5-l10n")
    set(kit_qt "qtbase5-dev")
endif()

set(CPACK_DEBIAN_KIT_PACKAGE_NAME acs-client-dev)
set(CPACK_DEBIAN_KIT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_KIT_PACKAGE_DEPENDS "acs-client (= ${PROJECT_VERSION}), ${kit_qt}")
set(CPACK_COMPONENT_KIT_DESCRIPTION "kit for pages of the alarm scheme client
Headers of the platform libraries of acs-client and the CMake package
AlarmSchemePlatform, for building modules that contribute pages to the client.")

install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/lintian-overrides
    DESTINATION share/lintian/overrides RENAME acs-client)
foreach(package client kit)
    string(TOUPPER ${package} upper)
    set(documents share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/copyright DESTINATION ${documents} COMPONENT ${package})
    acs_install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/changelog changelog ${documents} ${package})
endforeach()
get_property(compressed GLOBAL PROPERTY ACS_COMPRESSED_FILES)
add_custom_target(package_documents ALL DEPENDS ${compressed})
