# Foreign bytes of every kind that the program reads; a target is one file, NAME_target.cpp, and may add more than one
# row to the table. A plain driver in every build; with ZELKO_FUZZ and clang the same targets under libFuzzer:
#   build/zelko_fuzz all tests/corpus 500000
#   CXX=clang++ cmake -B build-fuzz -DZELKO_FUZZ=ON -DZELKO_TESTS=ON && cmake --build build-fuzz --target zelko_fuzz
#   ZELKO_FUZZ_TARGET=clip build-fuzz/zelko_fuzz -runs=500000 tests/corpus/clip
option(ZELKO_FUZZ "Fuzz targets (needs clang; the whole core is instrumented)" OFF)

file(GLOB FUZZ_TARGETS CONFIGURE_DEPENDS tests/fuzz/*target.cpp)
add_executable(zelko_fuzz ${FUZZ_TARGETS} tests/store/store_fixture.cpp tests/store/store_host.cpp)
target_include_directories(zelko_fuzz PRIVATE tests)
target_link_libraries(zelko_fuzz PRIVATE zelko_core)
if(ZELKO_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES Clang)
  target_compile_options(zelko_core PUBLIC -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -g -O1)
  target_sources(zelko_fuzz PRIVATE tests/fuzz/libfuzzer.cpp)
  target_link_options(zelko_fuzz PRIVATE -fsanitize=fuzzer,address,undefined)
else()
  target_sources(zelko_fuzz PRIVATE tests/fuzz/driver.cpp)
  # A folder of inputs for each.
  file(GLOB CORPORA CONFIGURE_DEPENDS tests/corpus/*)
  foreach(CORPUS ${CORPORA})
    cmake_path(GET CORPUS FILENAME NAME)
    add_test(NAME fuzz/${NAME} COMMAND zelko_fuzz ${NAME} ${CMAKE_SOURCE_DIR}/tests/corpus 5000)
  endforeach()
endif()
