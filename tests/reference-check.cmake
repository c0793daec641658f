# Writes the node reference afresh and fails, saying how to bring it up to
# date, when the committed copy says something else.
execute_process(COMMAND ${GENERATOR} ${FRESH} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "formwright-reference failed (${status})")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${FRESH} ${COMMITTED} RESULT_VARIABLE differs)
if(differs)
  execute_process(COMMAND diff -u ${COMMITTED} ${FRESH})
  message(FATAL_ERROR "${COMMITTED} does not match the code. Write it again with "
    "`cmake --build <build dir> --target reference` and commit it.")
endif()
