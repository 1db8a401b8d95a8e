# SPDX-License-Identifier: GPL-3.0-or-later
# expect_started_with_sounds(PROGRAM): runs PROGRAM offscreen until its first window is
# painted and fails on any complaint about the sound files.
function(expect_started_with_sounds program)
  if(NOT EXISTS ${program})
    message(FATAL_ERROR "no program at ${program}")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                          ${program} --quit-when-shown
                  RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 60)
  message(STATUS "${program}: exit ${code}\n${out}${err}")
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${program} ended with ${code}")
  endif()
  if(NOT out MATCHES "shown: Welcome to Gildenway")
    message(FATAL_ERROR "${program} did not show its set-up window")
  endif()
  if("${out}${err}" MATCHES "sound")
    message(FATAL_ERROR "${program} complained about its sounds")
  endif()
endfunction()
