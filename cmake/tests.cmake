# The tests: one doctest program over the core, headless.
find_package(doctest REQUIRED)
include(doctest)

# Tests are compiled to be run once: at -O1, with what nearly all of them include compiled before.
add_library(zelko_test_options INTERFACE)
target_compile_options(zelko_test_options INTERFACE -O1 $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # At -O1 this release takes the buffer inside a short std::string for all the room that a sum of strings has.
  target_compile_options(zelko_test_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()
target_include_directories(zelko_test_options INTERFACE tests)
target_link_libraries(zelko_test_options INTERFACE doctest::doctest)
set_source_files_properties(tests/main.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON)

file(GLOB_RECURSE TESTS CONFIGURE_DEPENDS tests/*.cpp)
# Those that read what is committed: the folder's name would keep the others out of the compiler cache.
foreach(TEST ${TESTS})
  file(STRINGS ${TEST} READS_SOURCES REGEX "ZELKO_SOURCE_DIR" LIMIT_COUNT 1)
  if(READS_SOURCES)
    set_source_files_properties(${TEST} PROPERTIES COMPILE_DEFINITIONS ZELKO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  endif()
endforeach()
list(FILTER TESTS EXCLUDE REGEX "/tests/(desktop|speech|fuzz|caserunner|faults|store|walker)/")
add_executable(zelko_tests ${TESTS} tests/store/store_fixture.cpp tests/store/store_host.cpp)
target_link_libraries(zelko_tests PRIVATE zelko_core zelko_test_options)
target_precompile_headers(zelko_tests PRIVATE tests/precompiled.h)
doctest_discover_tests(zelko_tests)

# The store with the floors below it alone: a name of a higher floor that it needed would be missing at the link.
file(GLOB_RECURSE STORE_TESTS CONFIGURE_DEPENDS tests/store/*.cpp)
add_executable(zelko_store_tests tests/main.cpp tests/fixture.cpp ${STORE_TESTS}
  "$<FILTER:$<TARGET_OBJECTS:zelko_core>,INCLUDE,/src/(platform|voice|store)/>")
target_include_directories(zelko_store_tests PRIVATE src)
target_link_libraries(zelko_store_tests PRIVATE zelko_warnings zelko_test_options)
target_precompile_headers(zelko_store_tests PRIVATE tests/precompiled.h)
doctest_discover_tests(zelko_store_tests)

# Sessions: each folder of tests/cases, played by the program itself.
add_executable(zelko_cases tests/caserunner/main.cpp)
target_link_libraries(zelko_cases PRIVATE zelko_core)
file(GLOB CASES CONFIGURE_DEPENDS tests/cases/*/script.txt)
if(TARGET zelko)
  foreach(SCRIPT ${CASES})
    cmake_path(GET SCRIPT PARENT_PATH CASE_FOLDER)
    cmake_path(GET CASE_FOLDER FILENAME CASE_NAME)
    add_test(NAME case/${CASE_NAME} COMMAND zelko_cases $<TARGET_FILE:zelko> ${CASE_FOLDER})
  endforeach()
endif()

# Every job that writes, killed in front of its calls and with each of them failing: a sample here, all of them by hand
# (tests/README.md).
add_library(zelko_file_calls MODULE tests/faults/preload.cpp tests/store/rewrite/file_calls.cpp)
target_include_directories(zelko_file_calls PRIVATE tests)
target_link_libraries(zelko_file_calls PRIVATE zelko_warnings ${CMAKE_DL_LIBS})
add_executable(zelko_faults tests/faults/main.cpp tests/faults/jobs.cpp)
target_include_directories(zelko_faults PRIVATE tests)
target_link_libraries(zelko_faults PRIVATE zelko_warnings)
if(TARGET zelko)
  add_test(NAME faults COMMAND zelko_faults $<TARGET_FILE:zelko> $<TARGET_FILE:zelko_file_calls> --every 29)
endif()

# A user at random: tests/walker/main.cpp says how.
file(GLOB WALKER CONFIGURE_DEPENDS tests/walker/*.cpp)
add_executable(zelko_walker ${WALKER})
target_include_directories(zelko_walker PRIVATE tests)
target_link_libraries(zelko_walker PRIVATE zelko_core)
