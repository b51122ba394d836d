# SPDX-License-Identifier: MIT
#
# Makes a page of an example, told by the comment at its top or above its class.

FNR == 1 {
    name = FILENAME
    sub(/^.*\//, "", name)
    printf "/*! \\example %s\n\\details\n", name
    next
}
/^\/\// {
    told = 1
    sub(/^\/\/ ?/, "")
    gsub(/\\a /, "")
    print
    next
}
told { exit }
END { print "*/" }
