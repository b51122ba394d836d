# SPDX-License-Identifier: MIT
#
# Gives the list OPTIONS to DEMO, the program, and to SCRIPT, which builds it; expects of both the
# exit status STATUS and the same answer: 0 with the help, 2 with one line of complaint. For neither
# may anything be installed or built.

file(MAKE_DIRECTORY "${WORK}")
foreach(tool IN ITEMS apt-get cmake ninja qtdiag sudo)
    file(WRITE "${WORK}/unwanted/${tool}" "#!/bin/sh\necho \"${tool} was called\"\n")
    file(COPY "${WORK}/unwanted/${tool}" DESTINATION "${WORK}/tools"
        FILE_PERMISSIONS OWNER_READ OWNER_EXECUTE)
endforeach()
set(ENV{PATH} "${WORK}/tools:$ENV{PATH}")
unset(ENV{QT_QPA_PLATFORM})
unset(ENV{DISPLAY})

# ask(<answer variable> <program> <name>): what the program says on both channels, without its name.
function(ask answer program name)
    execute_process(COMMAND "${program}" ${OPTIONS}
        TIMEOUT 60
        RESULT_VARIABLE status
        OUTPUT_VARIABLE output
        ERROR_VARIABLE complaint)
    if(NOT status STREQUAL "${STATUS}")
        message(FATAL_ERROR "${name}: exit status ${status} instead of ${STATUS}: ${complaint}")
    endif()
    if(STATUS EQUAL 2 AND NOT (output STREQUAL "" AND complaint MATCHES "^${name}: [^\n]+\n$"))
        message(FATAL_ERROR "${name}: not just one line of complaint: ${output}${complaint}")
    endif()
    if(STATUS EQUAL 0 AND NOT (complaint STREQUAL "" AND output MATCHES "^Usage: ${name} .*--help"))
        message(FATAL_ERROR "${name}: not just the help: ${output}${complaint}")
    endif()
    string(REPLACE "${name}" "NAME" text "${output}${complaint}")
    set(${answer} "${text}" PARENT_SCOPE)
endfunction()

ask(of_demo "${DEMO}" hmi-demo)
if(SCRIPT)
    ask(of_script "${SCRIPT}" scripts/demo)
    if(NOT of_script STREQUAL of_demo)
        message(FATAL_ERROR "Two answers:\n${of_script}${of_demo}")
    endif()
endif()
