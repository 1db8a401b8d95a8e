# SPDX-License-Identifier: GPL-3.0-or-later
# The desktop program: Qt views over the window models (src/view), the real delay, sound
# and message boxes (src/app), the executable, its installed files and its tests.
include(GNUInstallDirs)
find_package(Qt6 REQUIRED COMPONENTS Widgets Multimedia TextToSpeech)

# The pictures normally come from cmake/Art.cmake; without it the same sources are built here.
if(NOT TARGET gildenway_art)
  find_package(Qt6 REQUIRED COMPONENTS Gui)
  file(GLOB ART_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/art/*.cpp)
  add_library(gildenway_art STATIC ${ART_SOURCES})
  target_include_directories(gildenway_art PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(gildenway_art PUBLIC Qt6::Gui gildenway_options)
endif()

file(GLOB VIEW_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/view/*.cpp ${CMAKE_SOURCE_DIR}/src/view/*.h
  ${CMAKE_SOURCE_DIR}/src/app/*.cpp ${CMAKE_SOURCE_DIR}/src/app/*.h)
list(FILTER VIEW_SOURCES EXCLUDE REGEX ".*/app/main\\.cpp$")
add_library(gildenway_view STATIC ${VIEW_SOURCES})
set_target_properties(gildenway_view PROPERTIES AUTOMOC ON)
target_include_directories(gildenway_view PUBLIC ${CMAKE_SOURCE_DIR}/src)
# The simulator's end-state hash gives the last line of a run of computer players.
target_link_libraries(gildenway_view PUBLIC gildenway_core gildenway_cli gildenway_sim gildenway_options
                                            gildenway_art Qt6::Widgets Qt6::Multimedia
                                            Qt6::TextToSpeech)
# Games install into <prefix>/games, as Debian keeps them; the game finds its sounds relative to
# its own folder so that any prefix works.
set(GILDENWAY_INSTALL_BINDIR games CACHE STRING "Folder of the installed program, under the prefix")
file(RELATIVE_PATH GILDENWAY_SOUNDS_FROM_PROGRAM ${CMAKE_INSTALL_PREFIX}/${GILDENWAY_INSTALL_BINDIR}
     ${CMAKE_INSTALL_FULL_DATADIR}/gildenway/sounds)
target_compile_definitions(gildenway_view PRIVATE
  GILDENWAY_SOUNDS_FROM_PROGRAM="${GILDENWAY_SOUNDS_FROM_PROGRAM}"
  GILDENWAY_VERSION="${PROJECT_VERSION}")

add_executable(gildenway ${CMAKE_SOURCE_DIR}/src/app/main.cpp)
set_target_properties(gildenway PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_libraries(gildenway PRIVATE gildenway_view)
if(TARGET gildenway_sounds)
  add_dependencies(gildenway gildenway_sounds)
endif()

# The icons, painted at build time at every size of the hicolor theme and as SVG, by the same
# painting code as the game's pictures.
find_package(Qt6 REQUIRED COMPONENTS Svg)
add_executable(gildenway-appicon ${CMAKE_SOURCE_DIR}/tools/appicon/main.cpp)
target_link_libraries(gildenway-appicon PRIVATE gildenway_view Qt6::Svg)
set(GILDENWAY_ICON_THEME ${CMAKE_BINARY_DIR}/icons/hicolor)
set(GILDENWAY_ICON_FILES ${GILDENWAY_ICON_THEME}/scalable/apps/gildenway.svg)
foreach(size 16 22 24 32 48 64 128 256 512)
  list(APPEND GILDENWAY_ICON_FILES ${GILDENWAY_ICON_THEME}/${size}x${size}/apps/gildenway.png)
endforeach()
add_custom_command(
  OUTPUT ${GILDENWAY_ICON_FILES}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:gildenway-appicon> ${GILDENWAY_ICON_THEME}
  DEPENDS gildenway-appicon
  COMMENT "Painting the application icons"
  VERBATIM)
add_custom_target(gildenway_icon ALL DEPENDS ${GILDENWAY_ICON_FILES})

# The worst-case sheet: the real windows at their most crowded, at 1x and 2x. Its scenario
# is shared with the tests of whole texts and clear names.
add_library(gildenway_worst STATIC ${CMAKE_SOURCE_DIR}/tools/artsheet/worst/WorstCase.cpp)
target_include_directories(gildenway_worst PUBLIC ${CMAKE_SOURCE_DIR}/tools/artsheet/worst)
target_link_libraries(gildenway_worst PUBLIC gildenway_view)
add_executable(gildenway-artsheet-worst ${CMAKE_SOURCE_DIR}/tools/artsheet/worst/main.cpp)
target_link_libraries(gildenway-artsheet-worst PRIVATE gildenway_worst)

install(TARGETS gildenway RUNTIME DESTINATION ${GILDENWAY_INSTALL_BINDIR})
# The desktop entry and the AppStream metadata share the application's id.
set(GILDENWAY_APP_ID io.github.gildenway.Gildenway)
set(GILDENWAY_DESKTOP_FILE ${CMAKE_SOURCE_DIR}/data/${GILDENWAY_APP_ID}.desktop)
set(GILDENWAY_METAINFO_FILE ${CMAKE_SOURCE_DIR}/data/${GILDENWAY_APP_ID}.metainfo.xml)
install(FILES ${GILDENWAY_DESKTOP_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${GILDENWAY_METAINFO_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The screenshots the metadata shows, taken from the program's own windows, offscreen: the
# set-up window, and the board of a seeded game of four computers a few seconds in.
set(GILDENWAY_SCREENSHOT ${CMAKE_BINARY_DIR}/screenshots/set-up.png)
set(GILDENWAY_BOARD_SCREENSHOT ${CMAKE_BINARY_DIR}/screenshots/board.png)
add_custom_command(
  OUTPUT ${GILDENWAY_SCREENSHOT} ${GILDENWAY_BOARD_SCREENSHOT}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/screenshots
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:gildenway> --screenshot ${GILDENWAY_SCREENSHOT}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:gildenway> --computers 4 --seed 11 --tick-ms 10 --close-after-ms 4000
          --screenshot ${GILDENWAY_BOARD_SCREENSHOT}
  DEPENDS gildenway
  COMMENT "Taking the screenshots of the set-up window and the board"
  VERBATIM)
add_custom_target(gildenway_screenshots ALL DEPENDS ${GILDENWAY_SCREENSHOT} ${GILDENWAY_BOARD_SCREENSHOT})
install(DIRECTORY ${GILDENWAY_ICON_THEME} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  include(GoogleTest)
  file(GLOB GUI_TEST_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/gui/*.cpp)
  add_executable(gildenway_gui_tests ${GUI_TEST_SOURCES})
  target_link_libraries(gildenway_gui_tests PRIVATE gildenway_view gildenway_worst
                                                    gildenway_monkey Qt6::Test Qt6::Svg GTest::gtest)
  target_compile_definitions(gildenway_gui_tests PRIVATE
                             GILDENWAY_ICON_THEME="${GILDENWAY_ICON_THEME}")
  add_dependencies(gildenway_gui_tests gildenway_icon)
  gtest_discover_tests(gildenway_gui_tests DISCOVERY_MODE PRE_TEST
                       PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")

  # The built program starts offscreen, shows its set-up window and quits.
  add_test(NAME gui_smoke_setup_window
           COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                   $<TARGET_FILE:gildenway> --quit-when-shown)
  set_tests_properties(gui_smoke_setup_window PROPERTIES
    PASS_REGULAR_EXPRESSION "shown: Welcome to Gildenway v1.0\n"
    FAIL_REGULAR_EXPRESSION "sound files"
    TIMEOUT 30)

  # The desktop entry and the AppStream metadata as the desktop's tools read them.
  find_program(APPSTREAMCLI appstreamcli)
  find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
  if(APPSTREAMCLI)
    add_test(NAME appstream_metainfo_is_valid
             COMMAND ${APPSTREAMCLI} validate --no-net --strict ${GILDENWAY_METAINFO_FILE})
  endif()
  if(DESKTOP_FILE_VALIDATE)
    add_test(NAME desktop_entry_is_valid
             COMMAND ${DESKTOP_FILE_VALIDATE} ${GILDENWAY_DESKTOP_FILE})
    set_tests_properties(desktop_entry_is_valid PROPERTIES FAIL_REGULAR_EXPRESSION ".")
  endif()

  # --help, --version and a bad option, with no display.
  add_test(NAME gui_command_line
           COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:gildenway>
                   "-DHELP=Usage: gildenway \\[options\\].*--computers <N>.*--leave-by"
                   "-DVERSION=^gildenway ${PROJECT_VERSION}\n$"
                   -P ${CMAKE_SOURCE_DIR}/cmake/checks/CommandLine.cmake)

  # Installed under a prefix unknown at build time, and moved: the sounds are still found.
  add_test(NAME installed_program_finds_its_sounds
           COMMAND ${CMAKE_COMMAND} -DBUILD=${CMAKE_BINARY_DIR}
                   -DWORK=${CMAKE_BINARY_DIR}/check-installed -DBINDIR=${GILDENWAY_INSTALL_BINDIR}
                   -P ${CMAKE_SOURCE_DIR}/cmake/checks/RunInstalled.cmake)
  set_tests_properties(installed_program_finds_its_sounds PROPERTIES TIMEOUT 120)

  # The close box and File > Exit used while computers play, so inside a walk, a throw or a
  # card's wait: the process ends at once with code 0 (and, in the sanitizer build, no leak).
  foreach(by close exit)
    foreach(after 300 700 1300)
      add_test(NAME gui_${by}_inside_a_wait_${after}ms
               COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                       $<TARGET_FILE:gildenway> --computers 4 --seed 5 --tick-ms 10
                       --close-after-ms ${after} --leave-by ${by})
      set_tests_properties(gui_${by}_inside_a_wait_${after}ms PROPERTIES TIMEOUT 60)
    endforeach()
  endforeach()
  # A whole game of two computers at full speed, left by the end window's "Exit game"
  # (about 20 s in the Release build, 50 s in the sanitizer build).
  add_test(NAME gui_exit_game_at_the_end
           COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                   $<TARGET_FILE:gildenway> --computers 2 --seed 3 --tick-ms 0)
  set_tests_properties(gui_exit_game_at_the_end PROPERTIES TIMEOUT 600)
endif()
