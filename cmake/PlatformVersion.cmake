# The platform's version, as its header states it: AlarmSchemePlatform_VERSION.
set(header ${CMAKE_SOURCE_DIR}/platform/LXPluginAPI/PlatformVersion.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
foreach(number MAJOR MINOR)
    file(STRINGS ${header} line REGEX "#define LX_PLATFORM_VERSION_${number} [0-9]+")
    string(REGEX REPLACE ".* " "" AlarmSchemePlatform_VERSION_${number} "${line}")
endforeach()
set(AlarmSchemePlatform_VERSION ${AlarmSchemePlatform_VERSION_MAJOR}.${AlarmSchemePlatform_VERSION_MINOR})
