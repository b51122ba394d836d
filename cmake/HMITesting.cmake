# SPDX-License-Identifier: MIT

enable_testing()

# Tests that start programs start them by the emulator too, which they find in their environment.
string(REPLACE ";" "\\;" HMI_EMULATOR "${CMAKE_CROSSCOMPILING_EMULATOR}")

# hmi_set_test_surroundings(<tests>...): no display, and where a test makes one no OpenGL on it, no
# machine's locale, no complaint of Qt about a missing runtime directory, and none of LeakSanitizer
# about what Qt leaks. Qt 4 has no platform plugins: its tests use the display that is there.
function(hmi_set_test_surroundings)
    set(surroundings
        LC_ALL=C.UTF-8
        XDG_RUNTIME_DIR=${PROJECT_BINARY_DIR}/runtime
        "LSAN_OPTIONS=suppressions='${PROJECT_SOURCE_DIR}/tests/leaks-of-others.txt':print_suppressions=0"
        UBSAN_OPTIONS=print_stacktrace=1)
    if(HMI_QT_MAJOR GREATER 4)
        list(APPEND surroundings QT_QPA_PLATFORM=offscreen QT_XCB_GL_INTEGRATION=none)
    endif()
    set(seconds 300)
    if(HMI_EMULATOR)
        set(seconds 1800)
        list(APPEND surroundings
            "HMI_EMULATOR=${HMI_EMULATOR}" QTEST_FUNCTION_TIMEOUT=${seconds}000)
    endif()
    set_tests_properties(${ARGN} PROPERTIES
        TIMEOUT ${seconds} ENVIRONMENT "${surroundings}")
endfunction()

# hmi_add_suite(<test> <program> [<command that runs it>...]): the tests of a QtTest program, which
# must come to their end.
function(hmi_add_suite test program)
    add_test(NAME ${test} COMMAND ${ARGN} ${PROJECT_SOURCE_DIR}/tests/support/with-totals
        ${CMAKE_CURRENT_BINARY_DIR}/${test}.log
        ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${program}>)
    hmi_set_test_surroundings(${test})
endfunction()
