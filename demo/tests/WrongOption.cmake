# SPDX-License-Identifier: MIT
#
# Runs DEMO with the list OPTIONS and expects status 2, one line on stderr, nothing on stdout.

execute_process(COMMAND "${DEMO}" ${OPTIONS}
    TIMEOUT 60
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE complaint)
if(NOT status STREQUAL "2")
    message(FATAL_ERROR "Exit status ${status} instead of 2; stderr: ${complaint}")
endif()
if(NOT complaint MATCHES "^hmi-demo: [^\n]+\n$")
    message(FATAL_ERROR "Not one line of complaint: ${complaint}")
endif()
if(NOT output STREQUAL "")
    message(FATAL_ERROR "Output beside the complaint: ${output}")
endif()
