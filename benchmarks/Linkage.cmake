add_executable(bench_copy bench_copy.cpp)
target_link_libraries(bench_copy PRIVATE acs_options SchemeCopy SchemeEditor AlarmRecords benchmark::benchmark)

add_executable(bench_output_editor bench_output_editor.cpp)
target_link_libraries(bench_output_editor PRIVATE acs_options AlarmLinkage SchemeCopy HostServices LXGUI SiteLibrary
    VantaComponent VantaModel VantaLogic benchmark::benchmark)

set_target_properties(bench_copy bench_output_editor PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks)
