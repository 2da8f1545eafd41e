# Turns the help of a program into the source of a manual page. The help is: a summary, a line
# "Usage: ...", then sections, each a line "Title:" and its entries: two blanks, a name, and the text
# from a fixed column on or, after a long name, on the next lines. The help of a command follows a
# line "@command NAME". man-page.sh calls this.

BEGIN {
    kTextColumn = 30
    printf ".TH %s 1 \"\" \"Vestrel %s\" \"Vestrel\"\n", toupper(name), version
}

function escaped(text) {
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    sub(/^[.']/, "\\\\\\&&", text)
    return text
}

# The name of an entry: an option and its value. What else the help says of it goes into a note.
function printName(entry,    n, part, i) {
    note = ""
    n = split(entry, part, / (Excludes|Needs): /)
    for (i = 2; i <= n; i++)
        note = note (index(entry, " Needs: " part[i]) ? "; only with " : "; not with ") part[i]
    entry = part[1]
    if (sub(/ REQUIRED/, "", entry)) note = "; required" note
    # A default follows the name of a value; "/altdb=NAME" has none.
    if (entry ~ / / && match(entry, /=[^ =]+$/)) {
        note = note "; by default " substr(entry, RSTART + 1)
        entry = substr(entry, 1, RSTART - 1)
    }
    gsub(/,--/, ", --", entry)
    sub(/ (TEXT|INT):(INT in )?/, " ", entry)
    print ".TP\n\\fB" escaped(entry) "\\fR"
}

# Prints the entry that was read last, with the text of its own line if it has one there.
function printPending(isNameOnly,    text) {
    if (pending == "") return
    if (!isNameOnly && substr(pending, kTextColumn, 1) == " ") {
        text = substr(pending, kTextColumn + 1)
        pending = substr(pending, 1, kTextColumn)
    }
    gsub(/^ +| +$/, "", pending)
    printName(pending)
    printText(text)
    pending = ""
}

function endEntry() {
    printPending(0)
    if (note != "") print escaped("(" substr(note, 3) ")")
    note = ""
}

function printText(text) {
    sub(/^ +/, "", text)
    if (text == "") return
    print escaped(text)
}

# A program's own summary and usage are the sections NAME and SYNOPSIS.
function printHead(    noun) {
    noun = summary
    sub(/\.$/, "", noun)
    print ".SH NAME\n" escaped(name) " \\- " escaped(tolower(substr(noun, 1, 1)) substr(noun, 2))
    print ".SH SYNOPSIS\n.B " escaped(name) "\n" escaped(usage)
}

/^@command / {
    endEntry()
    command = $2
    skipping = inGroup = 0
    if (!commands++) print ".SH COMMANDS"
    print ".SS " escaped(command)
    summary = ""
    next
}

/^Usage: / {
    usage = $0
    sub(/^Usage: [^ ]+ */, "", usage)
    if (command == "") printHead()
    else {
        sub(/^[^ ]+ */, "", usage)
        print escaped(summary ".") "\n.PP\n.B " escaped(name " " command) "\n" escaped(usage)
    }
    next
}

# Commands are described one by one further down; their own --help needs no mention there.
/^[A-Z][A-Za-z ]*:$/ {
    endEntry()
    section = substr($0, 1, length($0) - 1)
    skipping = section == "Subcommands"
    if (command == "" && !skipping) print ".SH " toupper(section)
    next
}

skipping && !/^$/ { next }

# A group of options is a section within the section, set in by two blanks.
/^\[Option Group: / {
    inGroup = 1
    next
}
inGroup { sub(/^  /, "") }
inGroup && /^(\[.*\]|Options:)$/ {
    endEntry()
    gsub(/^\[|\]$/, "")
    if ($0 != "Options:") print ".PP\n" escaped($0 ":")
    next
}

/^  [^ ]/ {
    endEntry()
    skippingEntry = command != "" && /^  -h,--help /
    if (!skippingEntry) pending = $0
    next
}

/^   / {
    if (skippingEntry) next
    # A name that reaches to the column of the texts has its own line.
    if (pending != "") printPending(substr(pending, kTextColumn - 1, 2) != "  ")
    printText($0)
    next
}

/^ *$/ { next }

{ summary = $0 }

END {
    endEntry()
    if (seeAlso != "") print ".SH SEE ALSO\n" escaped(seeAlso)
}
