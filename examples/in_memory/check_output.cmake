# SPDX-License-Identifier: MIT
# cmake -DPROGRAM=... -DEXPECTED=... -P check_output.cmake
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE output RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "exit status ${status}")
endif()
file(READ ${EXPECTED} expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "expected:\n${expected}\nprinted:\n${output}")
endif()
