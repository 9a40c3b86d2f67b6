# Turns the options of korvet-batch --help into those of its manual page.

function escaped(text) {
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    return text
}

# Names, kind of value, and what the option needs or excludes, as the help has them in one line.
function tell_head(head,    names, rest) {
    names = head
    sub(/ .*/, "", names)
    rest = substr(head, length(names) + 2)
    note = ""
    if (match(rest, /(Needs|Excludes): .*/)) {
        note = substr(rest, RSTART)
        rest = substr(rest, 1, RSTART - 1)
        sub(/ *$/, "", note)
        gsub(/: /, " ", note)
        gsub(/ Excludes/, ". Excludes", note)
    }
    sub(/ *$/, "", rest)
    if (match(rest, /\{.*\}/)) {
        rest = substr(rest, RSTART + 1, RLENGTH - 2)
        gsub(/,/, "|", rest)
    }
    sub(/ \.\.\.$/, "", rest)
    sub(/:INT in /, " ", rest)
    gsub(/,/, ", ", names)
    print ".TP"
    print "\\fB" escaped(names) "\\fR" (rest == "" ? "" : " \\fI" escaped(rest) "\\fR")
}

function tell(text) {
    sub(/^ */, "", text)
    text = escaped(toupper(substr(text, 1, 1)) substr(text, 2))
    print text (text ~ /\.$/ ? "" : ".")
    if (note != "") {
        print escaped(note) "."
    }
}

# A head that fills its column has the description in the next line.
function tell_line() {
    if (line != "") {
        tell_head(substr(line, 1, Column))
        tell(substr(line, Column + 1))
    }
    line = ""
}

BEGIN { Column = 28 }
/^Options:/ { inside = 1; next }
/^$/ { tell_line(); inside = 0 }
inside && /^  -/ {
    tell_line()
    line = substr($0, 3)
    next
}
inside {
    tell_head(line)
    tell($0)
    line = ""
}
END { tell_line() }
