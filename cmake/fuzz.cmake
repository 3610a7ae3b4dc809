# Foreign bytes of every kind that the program reads: a plain driver in every build, and with ZELKO_FUZZ and clang a
# libFuzzer target.
option(ZELKO_FUZZ "Fuzz targets (needs clang; the whole core is instrumented)" OFF)

add_library(zelko_fuzz_checks STATIC tests/fuzz/itemfile_check.cpp tests/fuzz/clip_check.cpp tests/fuzz/corpus.cpp
  tests/store/store_fixture.cpp tests/store/store_host.cpp)
target_include_directories(zelko_fuzz_checks PUBLIC tests)
target_link_libraries(zelko_fuzz_checks PUBLIC zelko_core)

if(ZELKO_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES Clang)
  target_compile_options(zelko_core PUBLIC -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -g -O1)
  foreach(kind itemfile clip)
    add_executable(zelko_${kind}_fuzz tests/fuzz/${kind}_fuzz.cpp)
    target_link_libraries(zelko_${kind}_fuzz PRIVATE zelko_fuzz_checks)
    target_link_options(zelko_${kind}_fuzz PRIVATE -fsanitize=fuzzer,address,undefined)
  endforeach()
else()
  foreach(kind itemfile clip)
    add_executable(zelko_${kind}_corpus tests/fuzz/${kind}_corpus.cpp)
    target_link_libraries(zelko_${kind}_corpus PRIVATE zelko_fuzz_checks)
    add_test(NAME ${kind}_corpus COMMAND zelko_${kind}_corpus ${CMAKE_SOURCE_DIR}/tests/corpus/${kind} 5000)
  endforeach()
endif()
