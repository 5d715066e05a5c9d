add_executable(bench_store bench_store.cpp)
target_link_libraries(bench_store PRIVATE acs_options ClientStore AlarmSchemeStore SystemLibrary lxl SQLite::SQLite3
    benchmark::benchmark)
set_target_properties(bench_store PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks)
