# SPDX-License-Identifier: MIT
#
# Of apt's sources on this machine those that hold the release named SUITE, for any architecture and
# without source packages: what else they say, such as the mirror and the keys that it signs with,
# stays. SUITES are the names of that release that apt knows, with blanks between them.
# Reads and writes lines of one line a source, or paragraphs of fields where FORM is "deb822".

BEGIN {
    split(SUITES, names, " ")
    for (i in names)
        wanted[names[i]] = 1
}

FORM != "deb822" && /^[ \t]*deb[ \t]/ {
    sub(/[ \t]*#.*/, "")
    gsub(/arch[+-]?=[^] \t]*/, "")
    sub(/\[[ \t]*\]/, "")
    source = $0
    sub(/\[[^]]*\]/, "", source)
    split(source, fields, /[ \t]+/)
    if (fields[3] in wanted)
        print
}

FORM == "deb822" && /^[ \t]*$/ { end_paragraph() }
FORM == "deb822" && /^[^# \t]/ {
    field = tolower($1)
    sub(/:.*/, "", field)
}
FORM == "deb822" && /^[^#]/ && /[^ \t]/ { read_field() }
END { end_paragraph() }

function read_field(  i) {
    if (field == "suites") {
        for (i = 1; i <= NF; ++i)
            if ($i in wanted)
                suites = suites " " $i
    } else if (field == "types") {
        is_binary = is_binary || / deb( |$)|:deb( |$)/
    } else if (field == "enabled") {
        is_off = tolower($2) ~ /^(no|false|off|0)$/
    } else if (field != "architectures") {
        others = others $0 "\n"
    }
}

function end_paragraph() {
    if (suites && is_binary && !is_off)
        printf "Types: deb\nSuites:%s\n%s\n", suites, others
    suites = others = field = ""
    is_binary = is_off = 0
}
