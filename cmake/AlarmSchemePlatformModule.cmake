# alarm_scheme_platform_module(TARGET)
#
# Writes the version of the platform that TARGET, a plug-in made with add_library(TARGET MODULE ...), is built
# for into its plug-in metadata. A client compares it before it runs any code of the module, and refuses a
# module of another major version by name and reason. TARGET needs CMake's AUTOMOC.
function(alarm_scheme_platform_module target)
    string(REGEX MATCH "^[0-9]+\\.[0-9]+" version "${AlarmSchemePlatform_VERSION}")
    if(NOT version)
        message(FATAL_ERROR "The platform's version \"${AlarmSchemePlatform_VERSION}\" is no version")
    endif()
    set_property(TARGET ${target} PROPERTY AUTOMOC ON)
    set_property(TARGET ${target} APPEND PROPERTY AUTOMOC_MOC_OPTIONS "-MPlatformVersion=${version}")
endfunction()
