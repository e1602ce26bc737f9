# Fails when data/default.theme is not what kvt-theme writes today, so the
# committed file cannot drift from the colours in the generator.
# RUN: empty, or an emulator and its options separated by spaces.
separate_arguments(RUN UNIX_COMMAND "${RUN}")
file(REMOVE ${FRESH})
execute_process(COMMAND ${RUN} ${GENERATOR} ${FRESH} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "kvt-theme ${FRESH} failed: ${status}")
endif()
file(SIZE ${FRESH} size)
if(NOT size EQUAL 20)
  message(FATAL_ERROR "kvt-theme wrote ${size} bytes, a theme file has 20")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${FRESH} ${COMMITTED}
  RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "${COMMITTED} differs from what kvt-theme writes now; "
    "regenerate it with: kvt-theme ${COMMITTED}")
endif()
