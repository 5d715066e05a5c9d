# Makes the body of a manual page from a page of docs/: headings, paragraphs, examples, tables and lists.
# Sections named in lower case are the program's commands. -v see=NAME names the page to see also.

function inline(text) {
    gsub(/\\/, "\\e", text)
    text = pairs(text, "`", "\\fB")
    text = pairs(text, "\\*\\*", "\\fB")
    text = pairs(text, "\\*", "\\fI")
    gsub(/-/, "\\-", text)
    gsub(/\001/, "|", text)
    return (text ~ /^[.']/ ? "\\&" : "") text
}

# Sets what stands between two marks in a font; a mark without a partner stays.
function pairs(text, mark, font,    done, rest, length1) {
    done = ""
    while (match(text, mark)) {
        length1 = RLENGTH
        rest = substr(text, RSTART + length1)
        done = done substr(text, 1, RSTART - 1)
        if (!match(rest, mark))
            return done substr(text, length(text) - length(rest) - length1 + 1)
        done = done font substr(rest, 1, RSTART - 1) "\\fR"
        text = substr(rest, RSTART + RLENGTH)
    }
    return done text
}

function leave(next_kind) {
    if (kind == "example" && next_kind != "example")
        print ".fi\n.RE"
    kind = next_kind
}

/^# / { next }
/^## / {
    leave("")
    name = substr($0, 4)
    if (name ~ /^[a-z-]+$/) {
        if (!in_commands)
            print ".SH COMMANDS"
        in_commands = 1
        print ".SS " inline(name)
    } else {
        in_commands = 0
        print ".SH " toupper(name)
    }
    next
}
/^    / {
    if (kind != "example")
        print ".PP\n.RS 2\n.nf"
    else if (empty)
        print ""
    empty = 0
    leave("example")
    text = substr($0, 5)
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    print (text ~ /^[.']/ ? "\\&" : "") text
    next
}
/^\|/ {
    if ($0 ~ /^\|[-|]+$/)
        next
    gsub(/\\\|/, "\001")
    count = split($0, cells, / *\| */)
    if (kind != "table") {
        leave("table")
        if (cells[2] == "Exit code")
            print ".SH EXIT STATUS"
        next
    }
    print ".TP\n" inline(cells[2])
    for (i = 3; i < count; ++i)
        print inline(cells[i]) (i + 1 < count ? ":" : "")
    next
}
/^$/ {
    if (kind == "example")
        empty = 1
    else
        leave("")
    next
}
/^- / {
    leave("list")
    print ".IP \\(bu 2\n" inline(substr($0, 3))
    next
}
{
    if (kind != "text")
        print ".PP"
    leave("text")
    print inline($0)
}
END {
    leave("")
    print ".SH SEE ALSO\n.BR " inline(see) " (1)"
}
