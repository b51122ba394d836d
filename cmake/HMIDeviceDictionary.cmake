# SPDX-License-Identifier: MIT
#
# HMIDevice_put_dictionary_beside(<target> [DESTINATION <directory>])
#
# Puts the pinyin dictionary beside the program <target>, where the character keypad looks for it:
# when the program is built, and when it is installed, into <directory> (CMAKE_INSTALL_BINDIR, or
# "bin"). Warns and does nothing where the library was installed without a dictionary.

function(HMIDevice_put_dictionary_beside target)
    cmake_parse_arguments(PARSE_ARGV 1 argument "" "DESTINATION" "")
    if(NOT EXISTS "${HMIDevice_DICTIONARY}")
        message(WARNING "${target} gets no pinyin dictionary: this HMIDevice was installed without")
        return()
    endif()
    if(argument_DESTINATION)
        set(destination ${argument_DESTINATION})
    elseif(CMAKE_INSTALL_BINDIR)
        set(destination ${CMAKE_INSTALL_BINDIR})
    else()
        set(destination bin)
    endif()
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E copy_if_different
            "${HMIDevice_DICTIONARY}" "$<TARGET_FILE_DIR:${target}>/data.db"
        VERBATIM)
    install(FILES "${HMIDevice_DICTIONARY}" DESTINATION ${destination} RENAME data.db)
endfunction()
