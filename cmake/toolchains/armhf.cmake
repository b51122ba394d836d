# SPDX-License-Identifier: MIT
#
# For boards with a 32-bit ARM processor that has a floating-point unit (ARMv7 and newer).

set(board_triplet arm-linux-gnueabihf)
set(board_processor armv7l)
set(board_emulator qemu-arm)
include("${CMAKE_CURRENT_LIST_DIR}/debian-board.cmake")
