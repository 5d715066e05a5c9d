# One place that says how this project's targets are made: warnings, sanitizers, output folders, exports.
include(GenerateExportHeader)

# Where an installation keeps what is its own, from its prefix. The programs find it from where they lie.
set(ACS_HEADER_DIR include/acs-client)
set(ACS_LIBRARY_DIR lib/acs-client)
set(ACS_SHARED_DIR share/acs-client)

add_library(acs_options INTERFACE)
target_compile_definitions(acs_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_include_directories(acs_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)
if(MSVC)
    target_compile_options(acs_options INTERFACE /W4 /permissive- /utf-8)
else()
    target_compile_options(acs_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror)
    # Sizes of Qt 6 have 64 bits where those of Qt 5 are int; what fits into an int is checked in the Qt 5 build.
    if(ACS_QT EQUAL 5)
        target_compile_options(acs_options INTERFACE -Wconversion)
    endif()
endif()
if(ACS_SANITIZE)
    target_compile_options(acs_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(acs_options INTERFACE -fsanitize=address,undefined)
endif()

# acs_library(NAME [STATIC] SOURCES ... [PUBLIC ...] [PRIVATE ...])
# A library of this project. Shared ones get "<name in lower case>_export.h" with the macro <NAME>_EXPORT.
function(acs_library name)
    cmake_parse_arguments(ARG "STATIC" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    if(ARG_STATIC)
        add_library(${name} STATIC ${ARG_SOURCES})
    else()
        add_library(${name} SHARED ${ARG_SOURCES})
        string(TOLOWER ${name} lower)
        generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/generated/${lower}_export.h)
        set_target_properties(${name} PROPERTIES
            LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
            RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
            BUILD_RPATH_USE_ORIGIN ON INSTALL_RPATH "$ORIGIN")
        # Every shared library of the product is installed; see packaging/.
        set_property(GLOBAL APPEND PROPERTY ACS_SHARED_LIBRARIES ${name})
    endif()
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC} PRIVATE acs_options ${ARG_PRIVATE})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}> $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/generated>
        $<INSTALL_INTERFACE:${ACS_HEADER_DIR}>)
endfunction()

# acs_test(NAME SOURCES ... LIBS ...)
# A Qt Test program run by ctest without a display, in a working directory that holds "./Skin".
function(acs_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE acs_options Qt::Test ${ARG_LIBS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# Makes one target out of everything that is generated (meta-objects, forms), for tools that only read sources.
function(acs_add_generated_sources_target)
    add_custom_target(generated_sources)
    acs_collect_targets(${CMAKE_SOURCE_DIR} targets)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        get_target_property(automoc ${target} AUTOMOC)
        if(automoc AND NOT type STREQUAL "INTERFACE_LIBRARY" AND NOT type STREQUAL "UTILITY")
            add_dependencies(generated_sources ${target}_autogen)
        endif()
    endforeach()
endfunction()

function(acs_collect_targets directory out)
    get_property(found DIRECTORY ${directory} PROPERTY BUILDSYSTEM_TARGETS)
    get_property(folders DIRECTORY ${directory} PROPERTY SUBDIRECTORIES)
    foreach(folder IN LISTS folders)
        acs_collect_targets(${folder} inner)
        list(APPEND found ${inner})
    endforeach()
    set(${out} ${found} PARENT_SCOPE)
endfunction()
