# SPDX-License-Identifier: GPL-3.0-or-later
# The game's sound effects: gildenway-soundgen synthesises them at build time into
# ${GILDENWAY_SOUND_DIR}, they are installed with the game, and their tests read them back.
include(GNUInstallDirs)

file(GLOB SOUNDGEN_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/soundgen/*.cpp)
add_executable(gildenway-soundgen ${SOUNDGEN_SOURCES})
target_include_directories(gildenway-soundgen PRIVATE ${CMAKE_SOURCE_DIR}/src)
target_link_libraries(gildenway-soundgen PRIVATE gildenway_options)

# The file names are spelt once, in Sound.h; read them from there so the build's list of
# outputs cannot drift from the names the game plays.
set(SOUND_HEADER ${CMAKE_SOURCE_DIR}/src/ports/Sound.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${SOUND_HEADER})
file(READ ${SOUND_HEADER} SOUND_HEADER_TEXT)
string(REGEX MATCH "kSoundFiles = {[^}]*}" SOUND_FILE_TABLE "${SOUND_HEADER_TEXT}")
string(REGEX MATCHALL "\"[^\"]+\\.wav\"" SOUND_FILE_NAMES "${SOUND_FILE_TABLE}")
string(REGEX MATCH "kSoundEffectCount = ([0-9]+)" SOUND_COUNT_LINE "${SOUND_HEADER_TEXT}")
list(LENGTH SOUND_FILE_NAMES SOUND_FILE_COUNT)
if(NOT SOUND_FILE_COUNT EQUAL CMAKE_MATCH_1)
  message(FATAL_ERROR "Sounds.cmake: found ${SOUND_FILE_COUNT} file names in ${SOUND_HEADER}, "
                      "expected ${CMAKE_MATCH_1}")
endif()

set(GILDENWAY_SOUND_DIR ${CMAKE_BINARY_DIR}/sounds)
set(GILDENWAY_SOUND_FILES "")
foreach(quoted_name IN LISTS SOUND_FILE_NAMES)
  string(REPLACE "\"" "" name "${quoted_name}")
  list(APPEND GILDENWAY_SOUND_FILES ${GILDENWAY_SOUND_DIR}/${name})
endforeach()

add_custom_command(
  OUTPUT ${GILDENWAY_SOUND_FILES}
  COMMAND gildenway-soundgen ${GILDENWAY_SOUND_DIR}
  DEPENDS gildenway-soundgen
  COMMENT "Synthesising the sound effects into ${GILDENWAY_SOUND_DIR}"
  VERBATIM)
add_custom_target(gildenway_sounds ALL DEPENDS ${GILDENWAY_SOUND_FILES})

install(FILES ${GILDENWAY_SOUND_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/gildenway/sounds)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  include(GoogleTest)
  file(GLOB SOUND_TEST_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/sounds/*.cpp)
  add_executable(gildenway_sound_tests ${SOUND_TEST_SOURCES})
  target_include_directories(gildenway_sound_tests PRIVATE ${CMAKE_SOURCE_DIR}/src)
  target_compile_definitions(gildenway_sound_tests
                             PRIVATE GILDENWAY_SOUND_DIR="${GILDENWAY_SOUND_DIR}")
  target_link_libraries(gildenway_sound_tests PRIVATE gildenway_options GTest::gtest_main)
  add_dependencies(gildenway_sound_tests gildenway_sounds)
  gtest_discover_tests(gildenway_sound_tests DISCOVERY_MODE PRE_TEST)
endif()
