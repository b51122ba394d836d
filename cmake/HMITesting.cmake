# SPDX-License-Identifier: MIT

enable_testing()

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
    set_tests_properties(${ARGN} PROPERTIES TIMEOUT 300 ENVIRONMENT "${surroundings}")
endfunction()
