# SPDX-License-Identifier: MIT
#
# Doxygen's layout with a navigation of the manual's own: the pages in the order of the README's list.
# Give it the README and the layout of "doxygen -l".

function tab(type, title, more) {
    return "<tab type=\"" type "\" visible=\"yes\" title=\"" title "\"" more
}

FNR == NR {
    if (/^## /)
        is_list = /^## Manual$/
    while (is_list && match($0, /\[[^]]*\]\([^)]*\.md\)/)) {
        title = substr($0, RSTART + 1, RLENGTH - 2)
        url = title
        sub(/\]\(.*$/, "", title)
        sub(/^.*[(\/]/, "", url)
        sub(/\.md$/, "", url)
        pages = pages tab("user", title, " url=\"@ref " url "\"/>") "\n"
        $0 = substr($0, RSTART + RLENGTH)
    }
    next
}
/<navindex>/ {
    print "<navindex>"
    print tab("mainpage", "Start", "/>")
    print tab("usergroup", "Manual", " url=\"@ref using\">")
    printf "%s</tab>\n", pages
    print tab("classlist", "Classes", "/>")
    print tab("examples", "Example sources", "/>")
    inside = 1
}
/<\/navindex>/ { inside = 0 }
!inside { print }
