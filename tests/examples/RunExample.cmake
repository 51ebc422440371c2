# SPDX-License-Identifier: MIT
# Runs PROGRAM with ARGUMENTS (separated by "|") and compares its output with the file EXPECTED.
string(REPLACE "|" ";" arguments "${ARGUMENTS}")
execute_process(COMMAND ${PROGRAM} ${arguments} OUTPUT_FILE ${ACTUAL} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${EXPECTED} ${ACTUAL}
  RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
  execute_process(COMMAND diff -u ${EXPECTED} ${ACTUAL})
  message(FATAL_ERROR "${ACTUAL} differs from ${EXPECTED}")
endif()
