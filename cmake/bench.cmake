# Benchmarks: one program a job, each prints a ratio measured in one run. Not part of the ordinary build.
set(BENCHES bench_keys bench_numbers bench_open bench_paste bench_replace bench_rewrite bench_search bench_sort bench_step bench_walk)
foreach(bench IN LISTS BENCHES)
  add_executable(${bench} EXCLUDE_FROM_ALL bench/${bench}.cpp bench/bench_table.cpp)
  target_link_libraries(${bench} PRIVATE zelko_core)
endforeach()
add_custom_target(benches DEPENDS ${BENCHES})
