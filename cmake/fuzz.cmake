# The item file under mutated bytes: a plain driver in every build, and with ZELKO_FUZZ and clang a libFuzzer target.
option(ZELKO_FUZZ "Fuzz targets (needs clang; the whole core is instrumented)" OFF)

add_library(zelko_fuzz_checks STATIC tests/fuzz/itemfile_check.cpp tests/store/store_fixture.cpp tests/store/store_host.cpp)
target_include_directories(zelko_fuzz_checks PUBLIC tests)
target_link_libraries(zelko_fuzz_checks PUBLIC zelko_core)

if(ZELKO_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES Clang)
  target_compile_options(zelko_core PUBLIC -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -g -O1)
  add_executable(zelko_itemfile_fuzz tests/fuzz/itemfile_fuzz.cpp)
  target_link_libraries(zelko_itemfile_fuzz PRIVATE zelko_fuzz_checks)
  target_link_options(zelko_itemfile_fuzz PRIVATE -fsanitize=fuzzer,address,undefined)
else()
  add_executable(zelko_itemfile_corpus tests/fuzz/itemfile_corpus.cpp)
  target_link_libraries(zelko_itemfile_corpus PRIVATE zelko_fuzz_checks)
  add_test(NAME itemfile_corpus COMMAND zelko_itemfile_corpus ${CMAKE_SOURCE_DIR}/tests/corpus/itemfile 5000)
endif()
