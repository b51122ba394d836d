# SPDX-License-Identifier: MIT
#
# For boards with a 64-bit ARM processor (ARMv8 and newer).

set(board_triplet aarch64-linux-gnu)
set(board_processor aarch64)
set(board_emulator qemu-aarch64)
include("${CMAKE_CURRENT_LIST_DIR}/debian-board.cmake")
