# SPDX-License-Identifier: MIT

# hmi_add_x_test(<name> <sources>...): a QtTest program that is clicked with a real pointer. It runs
# twice on an X server of its own: as on a panel, without a window manager, and with one.
function(hmi_add_x_test name)
    set(run ${PROJECT_SOURCE_DIR}/tests/support/with-x-server)
    set(program $<TARGET_FILE:${name}>)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE hmi_test_support)
    add_test(NAME ${name} COMMAND ${run} ${program})
    add_test(NAME ${name}_managed COMMAND ${run} --window-manager ${program})
    hmi_set_test_surroundings(${name} ${name}_managed)
    set_tests_properties(${name} ${name}_managed PROPERTIES SKIP_RETURN_CODE 77)
endfunction()
