# SPDX-License-Identifier: GPL-3.0-or-later
# The pictures of the game, painted by code with QtGui, the contact-sheet tool that shows
# them all at 1x and 2x, and their tests.
find_package(Qt6 REQUIRED COMPONENTS Gui)
get_filename_component(GW_ART_ROOT ${CMAKE_CURRENT_LIST_DIR}/.. ABSOLUTE)

file(GLOB ART_SOURCES CONFIGURE_DEPENDS ${GW_ART_ROOT}/src/art/*.cpp)
add_library(gildenway_art STATIC ${ART_SOURCES})
target_include_directories(gildenway_art PUBLIC ${GW_ART_ROOT}/src)
target_link_libraries(gildenway_art PUBLIC Qt6::Gui gildenway_options)

# The list of every picture with its size, shared by the tool and the tests.
add_library(gildenway_art_catalogue STATIC ${GW_ART_ROOT}/tools/artsheet/Catalogue.cpp)
target_include_directories(gildenway_art_catalogue PUBLIC ${GW_ART_ROOT}/tools/artsheet)
target_link_libraries(gildenway_art_catalogue PUBLIC gildenway_art)

file(GLOB ARTSHEET_SOURCES CONFIGURE_DEPENDS ${GW_ART_ROOT}/tools/artsheet/*.cpp)
list(FILTER ARTSHEET_SOURCES EXCLUDE REGEX ".*/Catalogue\\.cpp$")
add_executable(gildenway-artsheet ${ARTSHEET_SOURCES})
target_link_libraries(gildenway-artsheet PRIVATE gildenway_art_catalogue)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  include(GoogleTest)
  file(GLOB ART_TEST_SOURCES CONFIGURE_DEPENDS ${GW_ART_ROOT}/tests/art/*.cpp)
  add_executable(gildenway_art_tests ${ART_TEST_SOURCES})
  target_link_libraries(gildenway_art_tests PRIVATE gildenway_art_catalogue GTest::gtest)
  gtest_discover_tests(gildenway_art_tests DISCOVERY_MODE PRE_TEST
                       PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endif()
