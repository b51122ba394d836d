# SPDX-License-Identifier: MIT

set(HMI_WITH_X_SERVER ${PROJECT_SOURCE_DIR}/tests/support/with-x-server)

# hmi_run_as_on_a_panel(<name> <test>): runs the program of that name as a test on an X server of its
# own, without a window manager.
function(hmi_run_as_on_a_panel name test)
    add_test(NAME ${test} COMMAND ${HMI_WITH_X_SERVER} $<TARGET_FILE:${name}>)
    hmi_set_test_surroundings(${test})
    set_tests_properties(${test} PROPERTIES SKIP_RETURN_CODE 77)
endfunction()

# hmi_run_on_x_server(<name> <test>): the same, and once more with a window manager.
function(hmi_run_on_x_server name test)
    hmi_run_as_on_a_panel(${name} ${test})
    add_test(NAME ${test}_managed
        COMMAND ${HMI_WITH_X_SERVER} --window-manager $<TARGET_FILE:${name}>)
    hmi_set_test_surroundings(${test}_managed)
    set_tests_properties(${test}_managed PROPERTIES SKIP_RETURN_CODE 77)
endfunction()

# hmi_add_x_test(<name> <sources>...): a QtTest program that is clicked with a real pointer.
function(hmi_add_x_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE hmi_test_support)
    hmi_run_on_x_server(${name} ${name})
endfunction()
