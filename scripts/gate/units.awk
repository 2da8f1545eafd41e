# Which translation units must be looked at, so that every changed file is: reads the list of changed
# files (the first file) and then all sources, and prints a line for each such .cpp file with the
# headers of ours that it includes, directly or not. A changed header that no chosen unit includes
# chooses one more: the first that includes it, or the .cpp of its own name.

function resolve(name, includer,    beside) {
    if (("src/" name) in isSource) return "src/" name
    if (("tests/" name) in isSource) return "tests/" name
    beside = includer
    sub(/[^\/]*$/, "", beside)
    return ((beside name) in isSource) ? beside name : ""
}

function walk(file, unit,    i, next_, n) {
    if ((unit, file) in reaches) return
    reaches[unit, file] = 1
    if (file != unit) headersOf[unit] = headersOf[unit] " " file
    n = includeCount[file]
    for (i = 1; i <= n; i++) {
        next_ = resolve(include[file, i], file)
        if (next_ != "") walk(next_, unit)
    }
}

BEGIN { for (i = 2; i < ARGC; i++) isSource[ARGV[i]] = 1 }

# By name and not by NR == FNR: the list may be empty.
FILENAME == ARGV[1] { changed[$0] = 1; next }

FNR == 1 { order[++files] = FILENAME }

/^[ \t]*#[ \t]*include[ \t]*"/ {
    match($0, /"[^"]+"/)
    include[FILENAME, ++includeCount[FILENAME]] = substr($0, RSTART + 1, RLENGTH - 2)
}

END {
    for (f = 1; f <= files; f++) {
        if (order[f] !~ /\.cpp$/) continue
        units[++unitCount] = order[f]
        walk(order[f], order[f])
        if (order[f] in changed) chosen[order[f]] = 1
    }
    for (f = 1; f <= files; f++) {
        header = order[f]
        if (header !~ /\.h$/ || !(header in changed)) continue
        own = header
        sub(/\.h$/, ".cpp", own)
        candidate = ""
        for (u = 1; u <= unitCount; u++) {
            if (!((units[u], header) in reaches)) continue
            if (units[u] in chosen) { candidate = ""; break }
            if (candidate == "" || units[u] == own) candidate = units[u]
        }
        if (candidate != "") chosen[candidate] = 1
    }
    for (u = 1; u <= unitCount; u++)
        if (units[u] in chosen) print units[u] headersOf[units[u]]
}
