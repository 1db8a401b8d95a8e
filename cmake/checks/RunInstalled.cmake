# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DBUILD=<build dir> -DWORK=<scratch dir> -DBINDIR=<program folder> -P RunInstalled.cmake
# Installs the build under a scratch prefix, moves the whole prefix elsewhere, and starts the
# moved program offscreen: it must show its set-up window and find every sound.
include(${CMAKE_CURRENT_LIST_DIR}/Started.cmake)

file(REMOVE_RECURSE ${WORK})
set(first ${WORK}/first-prefix)
set(moved ${WORK}/moved-prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${first}
                RESULT_VARIABLE failed OUTPUT_QUIET)
if(failed)
  message(FATAL_ERROR "cmake --install into ${first} failed")
endif()
file(RENAME ${first} ${moved})
expect_started_with_sounds(${moved}/${BINDIR}/gildenway)
file(REMOVE_RECURSE ${WORK})
