# acs_fuzzer(NAME SOURCES LIBRARIES)
# A program that makes up inputs for as long as it is let; its sources have what tests/fuzz/Fuzzer.h asks for.
# Without ACS_FUZZERS a test NAME of the suite, over its seeds and the files in found/NAME.
function(acs_fuzzer name sources libraries)
    if(ACS_FUZZERS)
        add_executable(${name} ${sources} ${CMAKE_SOURCE_DIR}/tests/fuzz/SeedWriter.cpp)
        target_link_libraries(${name} PRIVATE acs_options ${libraries})
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzzers)
        add_dependencies(fuzzers ${name})
    else()
        acs_test(${name} SOURCES ${sources} ${CMAKE_SOURCE_DIR}/tests/fuzz/FuzzReplay.cpp LIBS ${libraries})
        target_compile_definitions(${name} PRIVATE
            ACS_FUZZ_FOUND="${CMAKE_CURRENT_SOURCE_DIR}/found/${name}")
    endif()
endfunction()

# Everything that a fuzzer reaches tells it which way an input went.
if(ACS_FUZZERS)
    add_custom_target(fuzzers)
    target_compile_options(acs_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
