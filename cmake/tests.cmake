# The tests: one doctest program over the core, headless.
find_package(doctest REQUIRED)
include(doctest)
file(GLOB_RECURSE TESTS CONFIGURE_DEPENDS tests/*.cpp)
list(FILTER TESTS EXCLUDE REGEX "/tests/(desktop|speech|fuzz|caserunner|kill|store)/")
add_executable(zelko_tests ${TESTS} tests/store/store_fixture.cpp tests/store/store_host.cpp)
target_include_directories(zelko_tests PRIVATE tests)
target_link_libraries(zelko_tests PRIVATE zelko_core doctest::doctest)
target_compile_definitions(zelko_tests PRIVATE ZELKO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
doctest_discover_tests(zelko_tests)

# The store with the floors below it alone: a name of a higher floor that it needed would be missing at the link.
file(GLOB_RECURSE STORE_TESTS CONFIGURE_DEPENDS tests/store/*.cpp)
add_executable(zelko_store_tests tests/main.cpp tests/fixture.cpp ${STORE_TESTS}
  "$<FILTER:$<TARGET_OBJECTS:zelko_core>,INCLUDE,/src/(platform|voice|store)/>")
target_include_directories(zelko_store_tests PRIVATE tests src)
target_link_libraries(zelko_store_tests PRIVATE zelko_warnings doctest::doctest)
target_compile_definitions(zelko_store_tests PRIVATE ZELKO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
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

# Sessions that write, killed before each write.
add_executable(zelko_kill tests/kill/main.cpp)
if(TARGET zelko)
  foreach(CASE_NAME an-edited-table record-inserted-and-deleted design-widths-rewritten)
    add_test(NAME kill/${CASE_NAME} COMMAND zelko_kill $<TARGET_FILE:zelko> ${CMAKE_SOURCE_DIR}/tests/cases/${CASE_NAME})
  endforeach()
endif()
