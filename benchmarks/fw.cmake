add_executable(bench_dbgtrace ${CMAKE_CURRENT_LIST_DIR}/bench_dbgtrace.cpp)
target_link_libraries(bench_dbgtrace PRIVATE project_options Corvane::Gui benchmark::benchmark_main)
