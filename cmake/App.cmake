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
target_link_libraries(gildenway_view PUBLIC gildenway_core gildenway_options
                                            gildenway_art Qt6::Widgets Qt6::Multimedia
                                            Qt6::TextToSpeech)
# Where an installed game finds its sounds.
target_compile_definitions(gildenway_view PRIVATE
  GILDENWAY_DATA_DIR="${CMAKE_INSTALL_FULL_DATADIR}/gildenway")

add_executable(gildenway ${CMAKE_SOURCE_DIR}/src/app/main.cpp)
set_target_properties(gildenway PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_libraries(gildenway PRIVATE gildenway_view)
if(TARGET gildenway_sounds)
  add_dependencies(gildenway gildenway_sounds)
endif()

# The icon, rendered at build time from the same painting code as the game's pictures.
add_executable(gildenway-appicon ${CMAKE_SOURCE_DIR}/tools/appicon/main.cpp)
target_link_libraries(gildenway-appicon PRIVATE gildenway_view)
set(GILDENWAY_ICON ${CMAKE_BINARY_DIR}/gildenway.png)
add_custom_command(
  OUTPUT ${GILDENWAY_ICON}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
          $<TARGET_FILE:gildenway-appicon> ${GILDENWAY_ICON} 256
  DEPENDS gildenway-appicon
  COMMENT "Rendering the application icon"
  VERBATIM)
add_custom_target(gildenway_icon ALL DEPENDS ${GILDENWAY_ICON})

install(TARGETS gildenway RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_SOURCE_DIR}/data/gildenway.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${GILDENWAY_ICON} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  include(GoogleTest)
  file(GLOB GUI_TEST_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/gui/*.cpp)
  add_executable(gildenway_gui_tests ${GUI_TEST_SOURCES})
  target_link_libraries(gildenway_gui_tests PRIVATE gildenway_view gildenway_monkey Qt6::Test
                                                    GTest::gtest)
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
