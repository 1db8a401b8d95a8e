# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DPROGRAM=<program> -DHELP=<regex> [-DVERSION=<regex>] -P CommandLine.cmake
# With no display at all: --help (and --version) answer on standard output with code 0, and
# a bad option gets one line naming it and code 2.
function(run_program)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=QT_QPA_PLATFORM --unset=DISPLAY
                          --unset=WAYLAND_DISPLAY ${PROGRAM} ${ARGN}
                  RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 30)
  set(code ${code} PARENT_SCOPE)
  set(out "${out}" PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
endfunction()

run_program(--help)
if(NOT code EQUAL 0 OR NOT out MATCHES "${HELP}")
  message(FATAL_ERROR "--help: exit ${code}\n${out}${err}")
endif()
if(DEFINED VERSION)
  run_program(--version)
  if(NOT code EQUAL 0 OR NOT out MATCHES "${VERSION}")
    message(FATAL_ERROR "--version: exit ${code}\n${out}${err}")
  endif()
endif()
run_program(--no-such-option 3)
string(STRIP "${err}" line)
if(NOT code EQUAL 2 OR line MATCHES "\n" OR NOT line MATCHES "no-such-option")
  message(FATAL_ERROR "a bad option: exit ${code}, not 2 with one line naming it\n${out}${err}")
endif()
message(STATUS "${PROGRAM}: ${line}")
