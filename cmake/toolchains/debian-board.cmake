# SPDX-License-Identifier: MIT
#
# What armhf.cmake and arm64.cmake share: Debian's cross compiler, a root of the board's own packages,
# and QEMU to run what was built. They say before
#   board_triplet    how the compiler and the root's directories call the architecture
#   board_processor  how the board's kernel calls it
#   board_emulator   the program that runs its programs here
# HMI_BOARD_ROOT is the root; scripts/board-root makes one.

if(NOT DEFINED HMI_BOARD_ROOT)
    set(HMI_BOARD_ROOT "$ENV{HMI_BOARD_ROOT}")
endif()
if(NOT IS_DIRECTORY "${HMI_BOARD_ROOT}/usr/lib/${board_triplet}")
    message(FATAL_ERROR "HMI_BOARD_ROOT is \"${HMI_BOARD_ROOT}\", where no packages for "
        "${board_triplet} are. scripts/board-root makes such a root.")
endif()
# So that CMake's own trials of the compiler read the same.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES HMI_BOARD_ROOT)

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${board_processor})
set(CMAKE_SYSROOT "${HMI_BOARD_ROOT}")
set(CMAKE_CXX_COMPILER ${board_triplet}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${board_triplet})
if(NOT DEFINED CMAKE_INSTALL_LIBDIR)
    set(CMAKE_INSTALL_LIBDIR lib/${board_triplet} CACHE PATH "Where Debian has libraries")
endif()

# Programs are this machine's, lrelease with its CMake package among them; all else is the board's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(linguist /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake/Qt5LinguistTools)
if(NOT DEFINED Qt5LinguistTools_DIR AND IS_DIRECTORY ${linguist})
    set(Qt5LinguistTools_DIR ${linguist} CACHE PATH "")
endif()

find_program(HMI_BOARD_EMULATOR ${board_emulator})
if(HMI_BOARD_EMULATOR)
    # QEMU 7.2 does not look into the root for faccessat2(), by which programs for 64-bit ARM ask
    # whether Qt's folder of plugins is there: Qt is told where that is.
    set(CMAKE_CROSSCOMPILING_EMULATOR ${HMI_BOARD_EMULATOR} -L "${HMI_BOARD_ROOT}"
        -E "QT_PLUGIN_PATH=${HMI_BOARD_ROOT}/usr/lib/${board_triplet}/qt5/plugins")
    if(EXISTS "${HMI_BOARD_ROOT}/etc/fonts/board.conf")
        list(APPEND CMAKE_CROSSCOMPILING_EMULATOR
            -E "FONTCONFIG_FILE=${HMI_BOARD_ROOT}/etc/fonts/board.conf")
    endif()
endif()
