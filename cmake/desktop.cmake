# The desktop host, where Qt 6 is to be had; without it there is the headless one.
if(ZELKO_DESKTOP)
  find_package(Qt6 COMPONENTS Widgets PrintSupport DBus QUIET)
endif()
if(Qt6_FOUND)
  file(GLOB QT_HOST CONFIGURE_DEPENDS src/platform/qt/*.cpp)
  add_library(zelko_qt STATIC ${QT_HOST})
  target_link_libraries(zelko_qt PUBLIC zelko_core Qt6::Widgets Qt6::PrintSupport Qt6::DBus)
elseif(ZELKO_DESKTOP)
  message(STATUS "Qt 6 not found: the program is built without windows")
endif()

# The program itself links zelko_qt where there is one: if(TARGET zelko_qt).

# The tests of the desktop host, on Qt's offscreen platform. ZELKO_SHOTS names a folder for pictures of the windows.
find_package(doctest QUIET)
if(TARGET zelko_qt AND doctest_FOUND)
  enable_testing()
  file(GLOB DESKTOP_TESTS CONFIGURE_DEPENDS tests/desktop/*.cpp)
  add_executable(zelko_desktop_tests ${DESKTOP_TESTS})
  target_include_directories(zelko_desktop_tests PRIVATE tests)
  target_link_libraries(zelko_desktop_tests PRIVATE zelko_qt doctest::doctest)
  add_test(NAME desktop COMMAND zelko_desktop_tests)
  set_tests_properties(desktop PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endif()
