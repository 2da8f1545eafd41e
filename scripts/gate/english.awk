# Prints the lines whose comments or texts hold a pattern that a native reader has to decode:
#   FILE:LINE: what to write instead: the line
# Of C++ files it looks at comments and string literals, of others at every line.

BEGIN {
    rule("reckon(s|ed|ing)?( it)? (anew|again)|anew", "again, or recalculate")
    rule("the person|a person (who|may|can|edits|types|thinks)", "the user")
    rule("(statement|unit of work|written)[a-z]* .*(taken? back|took back|takes (it )?back)", "rolled back, or undone")
    rule("parted (by|from)", "separated by")
    rule("hangs? (from|on)|hung from", "belongs to, or depends on")
    rule("passed over", "skipped")
    rule("(is|are) none", "say what it is not: isn't valid, doesn't exist")
    rule("is no (day|date|number|party|directory|folder|amount|account|select|database|type|record|row)",
         "is not a ...")
    rule("(has|have|had|is|are|was|were) gone", "was deleted")
    rule("(that|those) of (the|a|an|its|this|another)", "repeat the noun")
    rule("as told|(is|are) told|told of", "is reported, or is described in")
    rule("meanwhile", "in the meantime")
    rule("yields no", "returns no")
}

function rule(pattern, instead) {
    ++rules
    patternOf[rules] = "(^|[^a-z])(" pattern ")($|[^a-z])"
    insteadOf[rules] = instead
}

# The comment and the literals of a line of C++.
function proseOf(line,    prose, comment) {
    if (line ~ /^[ \t]*#/) return ""
    if (match(line, /^[ \t]*\/\//)) return substr(line, RSTART)
    prose = ""
    while (match(line, /"([^"\\]|\\.)*"/)) {
        prose = prose " " substr(line, RSTART + 1, RLENGTH - 2)
        line = substr(line, 1, RSTART - 1) "_" substr(line, RSTART + RLENGTH)
    }
    if (match(line, /\/\/.*/)) prose = prose " " substr(line, RSTART)
    return prose
}

FNR == 1 {
    isCode = FILENAME ~ /\.(cpp|h)$/
    isSelf = FILENAME ~ /gate\/(english\.awk|selftest\.sh)$|CONTRIBUTING\.md$/
}

!isSelf {
    prose = isCode ? proseOf($0) : $0
    if (prose == "") next
    lower = tolower(prose)
    gsub(/there (is|are|was|were) no(ne)?/, "there lacks", lower) # good English
    gsub(/(if|when) (there|it) (is|are) none/, "if it lacks", lower)
    for (i = 1; i <= rules; i++) {
        if (lower ~ patternOf[i]) {
            line = $0
            sub(/^[ \t]+/, "", line)
            print FILENAME ":" FNR ": write \"" insteadOf[i] "\": " line
        }
    }
    # A comment that opens with a clause for a noun: "What is due today."
    if (isCode && prose ~ /^[ \t]*\/\/\/? What [a-z]/ && !inComment) {
        line = $0
        sub(/^[ \t]+/, "", line)
        print FILENAME ":" FNR ": name the thing instead of \"What ...\": " line
    }
    inComment = isCode && $0 ~ /^[ \t]*\/\//
}
