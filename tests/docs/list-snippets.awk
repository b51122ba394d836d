# SPDX-License-Identifier: MIT
#
# Lists the fenced blocks of Markdown pages, one a line, fields separated by tabs: page, heading above
# the block, language ("text" where none is told), line of its first line. Give it the pages relative
# to the folder of the sources, and run it there.

FNR == 1 {
    heading = ""
    open = 0
}
/^ *```/ {
    if (!open) {
        language = $0
        gsub(/[ `]/, "", language)
        print FILENAME "\t" heading "\t" (language == "" ? "text" : language) "\t" FNR + 1
    }
    open = !open
}
!open && /^#+ / {
    heading = $0
    sub(/^#+ /, "", heading)
}
