# SPDX-License-Identifier: MIT
#
# Puts the block that begins in line "first" of the file "page" in the place of the line @SNIPPET@ of
# the surroundings read. For a compiler, which is told the page's lines where "told" is the page's
# name, the block's includes come before everything else.

function read_block(    line, number) {
    while ((getline line <page) > 0) {
        if (++number < first)
            continue
        if (line ~ /^ *```/)
            return
        if (told && line ~ /^#include/) {
            includes = includes line "\n"
            line = ""
        }
        block = block line "\n"
    }
}

BEGIN {
    read_block()
    if (told)
        printf "%s", includes
}
$1 == "@SNIPPET@" {
    if (told)
        printf "#line %d \"%s\"\n", first, told
    printf "%s", block
    next
}
{ print }
