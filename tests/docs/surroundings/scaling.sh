# SPDX-License-Identifier: MIT
@SNIPPET@
