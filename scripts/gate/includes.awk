# Reads the floor table of the architecture page (the first file), whose rows are
#   | floor | `logic room`, ... | `screens room`, ... |
# and holds the #include lines of the other files against it. Prints the faults.

function fault(text) { print FILENAME ":" FNR ": " text }

# The room that a path below src belongs to; a room's screens are a room of their own.
function roomOf(path,    part, n) {
    n = split(path, part, "/")
    if (n > 2 && part[2] == "screens") return part[1] "/screens"
    if (n > 2 && (part[1] "/" part[2]) ~ /^(platform\/qt|core\/(binding|forms|grid))$/)
        return part[1] "/" part[2]
    return part[1]
}

function isWindowProgram(room) { return room ~ /^(kestrom|dbmender|photoreel|sumdesk)$/ }
function isProgram(room) { return isWindowProgram(room) || room == "vestrelctl" }
function mayKnowQt(room) { return isScreen[room] || isWindowProgram(room) }

# Why room `from` may not use room `to`; empty when it may.
function objection(from, to) {
    if (from == to) return ""
    if (isProgram(to)) return "nothing uses a program"
    if (from ~ /^platform/ && to !~ /^platform/) return "platform knows nothing of property"
    if (isScreen[to] && !mayKnowQt(from)) return "logic never uses screens"
    if (isScreen[from] && !isScreen[to]) return ""
    if (floor[to] < floor[from]) return ""
    return "floor " floor[from] " may not use floor " floor[to]
}

function readRooms(floorOfRow, text, screens,    room) {
    while (match(text, /`[^`]+`/)) {
        room = substr(text, RSTART + 1, RLENGTH - 2)
        floor[room] = floorOfRow
        isScreen[room] = screens
        ++rooms
        text = substr(text, RSTART + RLENGTH)
    }
}

NR == FNR {
    if (split($0, cell, "|") == 5 && cell[2] ~ /^ *[0-9.]+ *$/) {
        readRooms(cell[2] + 0, cell[3], 0)
        readRooms(cell[2] + 0, cell[4], 1)
    }
    next
}

FNR == 1 {
    if (!rooms) { print FILENAME ": the architecture page has no floor table"; exit }
    path = FILENAME
    sub(/^src\//, "", path)
    from = roomOf(path)
    if (!(from in floor)) print FILENAME ": the floor table has no room " from
}

/^[ \t]*#[ \t]*include/ {
    if (!match($0, /["<][^">]+[">]/)) next
    file = substr($0, RSTART + 1, RLENGTH - 2)
    ours = substr($0, RSTART, 1) == "\""

    if (file ~ /^Q[A-Z]|^Qt[A-Z][A-Za-z]*\//) {
        if (!mayKnowQt(from)) fault("logic never includes Qt (" file ")")
        next
    }
    if (file ~ /^SQLiteCpp\/|^sqlite3/) {
        if (path !~ /^platform\/database\//)
            fault("only platform/database sees the engine (" file ")")
        next
    }
    if (!ours || file ~ /^ui_[^\/]+$/) next
    if (file !~ /\//) { fault("\"" file "\" doesn't say its room"); next }
    to = roomOf(file)
    if (!(to in floor)) { fault("there is no room " to " (" file ")"); next }
    why = objection(from, to)
    if (why != "") fault(from " includes " file ": " why)
}
