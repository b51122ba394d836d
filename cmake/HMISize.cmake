# SPDX-License-Identifier: MIT

include(CheckCXXSourceCompiles)
include(CMakePushCheckState)

# hmi_link_smaller(<target> <options>...): those of the linker's options that this linker knows.
function(hmi_link_smaller target)
    foreach(option IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "HMI_LINKER_KNOWS_${option}" known)
        cmake_push_check_state(RESET)
        set(CMAKE_REQUIRED_LINK_OPTIONS "LINKER:${option}")
        check_cxx_source_compiles("int main() { return 0; }" ${known})
        cmake_pop_check_state()
        if(${known})
            target_link_options(${target} PRIVATE "LINKER:${option}")
        endif()
    endforeach()
endfunction()

# hmi_make_small(<library>): a keypad waits for fingers, so what counts is its size. Nothing in it
# throws or catches, as nothing in Qt's own widgets does; it can be unwound all the same.
function(hmi_make_small library)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        return()
    endif()
    target_compile_options(${library} PRIVATE
        $<$<NOT:$<CONFIG:Debug>>:-Os> -fno-exceptions -funwind-tables -ffunction-sections
        "SHELL:-include '${PROJECT_SOURCE_DIR}/keypad/OutOfMemory_p.h'")
    if(NOT BUILD_SHARED_LIBS)
        return()
    endif()
    hmi_link_smaller(${library} --gc-sections -z,noseparate-code)
    if(HMI_QT_REDUCES_RELOCATIONS)
        hmi_link_smaller(${library} -Bsymbolic-functions)
    endif()
endfunction()
