# cmake --build build --target package makes one .deb of everything that is installed; the target manpages its pages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelko)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Zelko developers <maintainers@zelko.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "table editor and statistics run by keyboard and ear, in Japanese")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Tables, address books, exam marks and research data are kept in plain text
files. The user moves from cell to cell by key, types into one box, and hears
every move, control and result as a Japanese sentence: search, sorting,
extraction, statistics, scoring, printing of labels and postcards.

耳で使う表編集と統計のソフトです。キーでセルを移動し、一つの入力ボックスに入力すると、
移動も、ボタンも、結果も、すべて日本語の文で読み上げられます。検索、並べかえ、抽出、統計、
採点、宛名シールと葉書の印刷ができます。")
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is run or read, and not linked.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "mecab-ipadic-utf8, speech-dispatcher, speech-dispatcher-espeak-ng, fonts-ipafont-gothic, fonts-ipafont-mincho")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "skkdic-extra")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Pages of the manual, from what --help prints and from docs/.
find_program(LOWDOWN lowdown)
if(LOWDOWN AND TARGET zelko AND TARGET zelko-reader)
  set(MAN_FOLDER ${CMAKE_BINARY_DIR}/man)
  add_custom_command(OUTPUT ${MAN_FOLDER}/stamp
    COMMAND ${CMAKE_SOURCE_DIR}/tools/make_manpages.sh $<TARGET_FILE:zelko> $<TARGET_FILE:zelko-reader> ${MAN_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E touch ${MAN_FOLDER}/stamp
    DEPENDS zelko zelko-reader tools/make_manpages.sh assets/man/zelko.md assets/man/zelko.ja.md assets/man/zelko-reader.md
            assets/man/zelko-reader.ja.md docs/table-format.md docs/table-format.ja.md
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM)
  add_custom_target(manpages DEPENDS ${MAN_FOLDER}/stamp)
  install(DIRECTORY ${MAN_FOLDER}/ DESTINATION share/man OPTIONAL FILES_MATCHING PATTERN "*.gz")
endif()

# Licences and what changed, as the distribution wants them.
install(FILES assets/debian/copyright DESTINATION share/doc/zelko)
find_program(GZIP gzip REQUIRED)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/changelog.gz
  COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/assets/debian/changelog > ${CMAKE_BINARY_DIR}/changelog.gz
  DEPENDS assets/debian/changelog)
add_custom_target(changelog ALL DEPENDS ${CMAKE_BINARY_DIR}/changelog.gz)
install(FILES ${CMAKE_BINARY_DIR}/changelog.gz DESTINATION share/doc/zelko)

foreach(SIZE 16 22 24 32 48 64 128 256)
  install(FILES assets/icons/zelko-${SIZE}.png DESTINATION share/icons/hicolor/${SIZE}x${SIZE}/apps RENAME zelko.png)
endforeach()
install(FILES assets/zelko.metainfo.xml DESTINATION share/metainfo)
include(CPack)
