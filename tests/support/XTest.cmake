# SPDX-License-Identifier: MIT

# hmi_run_on_x_server(<name> <test>): runs the program of that name as tests, twice on an X server of
# its own: as on a panel, without a window manager, and with one.
function(hmi_run_on_x_server name test)
    set(run ${PROJECT_SOURCE_DIR}/tests/support/with-x-server)
    set(program $<TARGET_FILE:${name}>)
    add_test(NAME ${test} COMMAND ${run} ${program})
    add_test(NAME ${test}_managed COMMAND ${run} --window-manager ${program})
    hmi_set_test_surroundings(${test} ${test}_managed)
    set_tests_properties(${test} ${test}_managed PROPERTIES SKIP_RETURN_CODE 77)
endfunction()

# hmi_add_x_test(<name> <sources>...): a QtTest program that is clicked with a real pointer.
function(hmi_add_x_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE hmi_test_support)
    hmi_run_on_x_server(${name} ${name})
endfunction()
