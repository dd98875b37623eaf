# Runs a command, which is to succeed and print what stands in a file:
# cmake "-DCOMMAND=program;arguments" -DEXPECTED=FILE -DPRINTED=FILE -P expect_output.cmake
execute_process(COMMAND ${COMMAND} OUTPUT_FILE ${PRINTED} RESULT_VARIABLE code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "exit code ${code}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${PRINTED} ${EXPECTED} RESULT_VARIABLE differ)
if(differ)
  file(READ ${PRINTED} printed)
  message(FATAL_ERROR "not as in ${EXPECTED}:\n${printed}")
endif()
