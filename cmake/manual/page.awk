# SPDX-License-Identifier: MIT
#
# Turns a page that is written for a plain viewer of Markdown into one for Doxygen: its title and
# headings get the anchors that such a viewer makes, prefixed with the page's name, links between pages
# lead to these, names of examples to the examples, and pictures are named without their folder.

function anchor_of(text) {
    text = tolower(text)
    gsub(/[^a-z0-9 _-]/, "", text)
    gsub(/ /, "-", text)
    return text
}

function name_of(path) {
    sub(/^.*\//, "", path)
    sub(/\.md$/, "", path)
    return path
}

# The link "[text](page.md#anchor)", which begins with the line given, as Doxygen writes it.
function reference(text, target,    parts) {
    split(target, parts, "#")
    target = parts[1] == "" ? page : name_of(parts[1])
    if (parts[2] != "")
        return "[" text "](@ref " target "-" parts[2] ")"
    return "[" text "](@ref " target ")"
}

function with_links(line,    done, text, target) {
    while (match(line, /\[[^]]*\]\([^)]*\)/)) {
        text = substr(line, RSTART + 1, RLENGTH - 2)
        target = text
        sub(/\]\(.*$/, "", text)
        sub(/^.*\]\(/, "", target)
        if (target ~ /^([a-z\/-]*[A-Za-z-]+\.md)?(#.*)?$/)
            text = reference(text, target)
        else if (target ~ /\.png$/)
            text = "[" text "](" name_of(target) ")"
        else if (target ~ /examples\/[A-Za-z-]+\.(cpp|h)$/)
            text = "[" text "](@ref " name_of(target) ")"
        else if (target !~ /:/)
            text = "<a href=\"" target "\">" text "</a>"
        else
            text = substr(line, RSTART, RLENGTH)
        done = done substr(line, 1, RSTART - 1) text
        line = substr(line, RSTART + RLENGTH)
    }
    return done line
}

function with_examples(line,    done, name) {
    while (match(line, /`examples\/[A-Za-z-]+\.(cpp|h)`/)) {
        name = substr(line, RSTART + 10, RLENGTH - 11)
        done = done substr(line, 1, RSTART - 1) "[examples/" name "](@ref " name ")"
        line = substr(line, RSTART + RLENGTH)
    }
    return done line
}

BEGIN { page = name_of(ARGV[1]) }
/^ *```/ {
    in_code = !in_code
    print
    next
}
in_code {
    print
    next
}
/^# / {
    print $0 " {#" page "}"
    next
}
/^##+ / {
    gsub(/`/, "") # which Doxygen takes for a tag in the menus
    heading = $0
    sub(/^#+ /, "", heading)
    print $0 " {#" page "-" anchor_of(heading) "}"
    next
}
{ $0 = begun $0 }
/\[[^]]*$/ { # a link goes on in the next line
    begun = $0 " "
    next
}
{ begun = "" }
/^!\[.*\)$/ {
    print with_links($0) "\n" # a picture with a caption is a paragraph of its own
    next
}
{ print with_examples(with_links($0)) }
END {
    if (begun != "")
        print begun
}
