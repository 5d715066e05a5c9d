add_executable(bench_exchange bench_exchange.cpp SchemesToMeasure.h)
target_link_libraries(bench_exchange PRIVATE acs_options SchemeExchange AlarmSchemeStore SystemLibrary lxl
    benchmark::benchmark)
set_target_properties(bench_exchange PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks)
