# SPDX-License-Identifier: MIT
#
# Cross builds build these programs and do not run them here: an X server, its window manager and the
# pointer are this machine's, and the library knows nothing of them but through Qt.

set(HMI_WITH_X_SERVER ${PROJECT_SOURCE_DIR}/tests/support/with-x-server)

# hmi_run_as_on_a_panel(<name> <test> [<option of with-x-server>]): runs the program of that name as a
# test on an X server of its own, without a window manager.
function(hmi_run_as_on_a_panel name test)
    if(CMAKE_CROSSCOMPILING)
        return()
    endif()
    hmi_add_suite(${test} ${name} ${HMI_WITH_X_SERVER} ${ARGN})
    set_tests_properties(${test} PROPERTIES SKIP_RETURN_CODE 77)
endfunction()

# hmi_run_on_x_server(<name> <test>): the same, and once more with a window manager.
function(hmi_run_on_x_server name test)
    hmi_run_as_on_a_panel(${name} ${test})
    hmi_run_as_on_a_panel(${name} ${test}_managed --window-manager)
endfunction()

# hmi_add_x_test(<name> <sources>...): a QtTest program that is clicked with a real pointer.
function(hmi_add_x_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE hmi_test_support)
    hmi_run_on_x_server(${name} ${name})
endfunction()
