# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DBUILD=<build dir> -DWORK=<scratch dir> -DVERSION=<version> -P DebPackage.cmake
# Builds the Debian package, has lintian look at it, unpacks it with dpkg-deb into a scratch
# folder and starts the unpacked program offscreen: it must find its sounds.
include(${CMAKE_CURRENT_LIST_DIR}/Started.cmake)

file(REMOVE_RECURSE ${WORK})
execute_process(COMMAND cpack -G DEB --config ${BUILD}/CPackConfig.cmake -B ${WORK}
                RESULT_VARIABLE failed OUTPUT_VARIABLE out ERROR_VARIABLE err)
execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE arch
                OUTPUT_STRIP_TRAILING_WHITESPACE)
set(deb ${WORK}/gildenway_${VERSION}_${arch}.deb)
if(failed OR NOT EXISTS ${deb})
  message(FATAL_ERROR "cpack did not write ${deb}\n${out}${err}")
endif()

execute_process(COMMAND dpkg-deb --field ${deb} Depends Recommends OUTPUT_VARIABLE fields)
message(STATUS "${deb}\n${fields}")
foreach(needed "fonts-dejavu-core" "libqt6widgets6" "libqt6multimedia6" "qt6-speech-flite-plugin")
  if(NOT fields MATCHES "${needed}")
    message(FATAL_ERROR "the package does not name ${needed}:\n${fields}")
  endif()
endforeach()

find_program(LINTIAN lintian)
if(LINTIAN)
  execute_process(COMMAND ${LINTIAN} --tag-display-limit 0 ${deb}
                  OUTPUT_VARIABLE report ERROR_VARIABLE report)
  message(STATUS "lintian:\n${report}")
  if(report MATCHES "(^|\n)E: ")
    message(FATAL_ERROR "lintian reports an error")
  endif()
endif()

execute_process(COMMAND dpkg-deb -x ${deb} ${WORK}/root RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "dpkg-deb -x ${deb} failed")
endif()
foreach(file usr/share/gildenway/sounds/DICEROLL.wav usr/share/icons/hicolor/16x16/apps/gildenway.png
             usr/share/applications/io.github.gildenway.Gildenway.desktop
             usr/share/metainfo/io.github.gildenway.Gildenway.metainfo.xml)
  if(NOT EXISTS ${WORK}/root/${file})
    message(FATAL_ERROR "the package lacks /${file}")
  endif()
endforeach()
expect_started_with_sounds(${WORK}/root/usr/games/gildenway)
file(REMOVE_RECURSE ${WORK})
