# The texts of the manual stand in the program: assets/manual/NAME.txt becomes manual_NAME.inc, a string literal.
set(MANUAL_FOLDER ${CMAKE_BINARY_DIR}/manual)
foreach(NAME chapters menu)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS assets/manual/${NAME}.txt)
  file(READ assets/manual/${NAME}.txt TEXT)
  # In pieces: a compiler need not take a literal of more than 65,536 bytes, but it joins neighbours.
  string(REPLACE "\n# " "\n)manual\"\nR\"manual(# " TEXT "${TEXT}")
  file(CONFIGURE OUTPUT ${MANUAL_FOLDER}/manual_${NAME}.inc CONTENT "R\"manual(${TEXT})manual\"\n" @ONLY)
endforeach()
set_source_files_properties(src/files/manual/chapters.cpp PROPERTIES INCLUDE_DIRECTORIES ${MANUAL_FOLDER}
  OBJECT_DEPENDS "${MANUAL_FOLDER}/manual_chapters.inc;${MANUAL_FOLDER}/manual_menu.inc")

# One page of HTML for the package.
if(TARGET zelko)
  add_custom_command(OUTPUT ${MANUAL_FOLDER}/index.html
    COMMAND zelko --manual ${CMAKE_SOURCE_DIR}/assets/help > ${MANUAL_FOLDER}/index.html
    DEPENDS zelko ${MANUAL_FOLDER}/manual_chapters.inc ${MANUAL_FOLDER}/manual_menu.inc VERBATIM)
  add_custom_target(manual ALL DEPENDS ${MANUAL_FOLDER}/index.html)
  install(FILES ${MANUAL_FOLDER}/index.html DESTINATION share/doc/zelko/manual)
endif()
