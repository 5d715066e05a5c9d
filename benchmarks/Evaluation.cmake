add_executable(bench_evaluation bench_evaluation.cpp)
target_link_libraries(bench_evaluation PRIVATE acs_options AlarmSchemeStore SchemeEvaluation SystemLibrary lxl
    benchmark::benchmark)
set_target_properties(bench_evaluation PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks)
