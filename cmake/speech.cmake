# Descriptions of characters: made from the dictionaries of the system, needed by the editor too.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(DICTIONARIES /usr/share/edict/edict /usr/share/edict/kanjidic /usr/share/unicode/Unihan_Readings.txt.bz2)
foreach(DICTIONARY ${DICTIONARIES})
  if(NOT EXISTS ${DICTIONARY})
    message(FATAL_ERROR "${DICTIONARY} is missing: install the packages edict, kanjidic and unicode-data")
  endif()
endforeach()
set(DESCRIPTIONS_FOLDER ${CMAKE_BINARY_DIR}/descriptions)
file(MAKE_DIRECTORY ${DESCRIPTIONS_FOLDER})
add_custom_command(OUTPUT ${DESCRIPTIONS_FOLDER}/descriptions.inc
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/make_descriptions.py
          --output ${DESCRIPTIONS_FOLDER}/descriptions.inc
  DEPENDS tools/make_descriptions.py tools/radicals.txt tools/variants.txt tools/misread_words.txt ${DICTIONARIES}
  VERBATIM)
set(DESCRIPTIONS src/speech/descriptions.cpp src/speech/signnames.cpp src/speech/signs.cpp src/speech/plain.cpp
                 src/speech/latin.cpp)
target_sources(zelko_core PRIVATE ${DESCRIPTIONS} ${DESCRIPTIONS_FOLDER}/descriptions.inc)
set_source_files_properties(src/speech/descriptions.cpp PROPERTIES INCLUDE_DIRECTORIES ${DESCRIPTIONS_FOLDER}
                            OBJECT_DEPENDS ${DESCRIPTIONS_FOLDER}/descriptions.inc)

# The reader: speaks sentences through the speech service of the desktop.
if(ZELKO_SPEECH)
  find_library(MECAB_LIBRARY mecab REQUIRED)
  find_path(MECAB_INCLUDE mecab.h REQUIRED)
  find_package(Threads REQUIRED)

  file(GLOB SPEECH CONFIGURE_DEPENDS src/speech/*.cpp)
  list(FILTER SPEECH EXCLUDE REGEX "/(main|clipboard_watch|descriptions|signnames|signs|plain|latin)\\.cpp$")
  add_library(zelko_speech STATIC ${SPEECH})
  target_include_directories(zelko_speech PRIVATE ${MECAB_INCLUDE})
  target_link_libraries(zelko_speech PUBLIC zelko_core Threads::Threads PRIVATE ${MECAB_LIBRARY})

  # Without Qt it still reads lines.
  add_executable(zelko-reader src/speech/main.cpp)
  target_link_libraries(zelko-reader PRIVATE zelko_speech)
  if(ZELKO_DESKTOP)
    find_package(Qt6 QUIET COMPONENTS Gui)
  endif()
  if(TARGET Qt6::Gui)
    target_sources(zelko-reader PRIVATE src/speech/clipboard_watch.cpp)
    target_compile_definitions(zelko-reader PRIVATE ZELKO_READER_CLIPBOARD)
    target_link_libraries(zelko-reader PRIVATE Qt6::Gui)
  endif()
endif()

# Waits for the end of the main list, where doctest is known.
function(add_speech_tests)
  if(NOT ZELKO_SPEECH OR NOT ZELKO_TESTS)
    return()
  endif()
  file(GLOB SPEECH_TESTS CONFIGURE_DEPENDS tests/speech/*.cpp)
  add_executable(zelko_speech_tests ${SPEECH_TESTS})
  target_link_libraries(zelko_speech_tests PRIVATE zelko_speech doctest::doctest)
  target_compile_definitions(zelko_speech_tests PRIVATE ZELKO_READER="$<TARGET_FILE:zelko-reader>")
  add_dependencies(zelko_speech_tests zelko-reader)
  add_test(NAME speech COMMAND zelko_speech_tests)
  set_tests_properties(speech PROPERTIES LABELS speech TIMEOUT 60)
endfunction()
cmake_language(DEFER CALL add_speech_tests)
