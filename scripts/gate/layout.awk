# Prints the lines of forms (kind=form) or CMake files (kind=cmake) that are not indented by their
# depth, hold tabs, or end in blanks.

function fault(text) { print FILENAME ":" FNR ": " text }
function indent(line) { match(line, /^ */); return RLENGTH }
# How often `pattern` occurs in `text`.
function count(text, pattern) { return gsub(pattern, "&", text) }

FNR == 1 { base = -1; depth = 0; open = 0; inText = 0; inString = 0 }
{ bare = $0; gsub(/<string[^>]*>[^<]*/, "", bare) }
bare ~ /\t/ && !inText { fault("a tab") }
/[ \r]$/ { fault("a blank at the end") }
/^[ ]*$/ { next }

kind == "form" {
    if (inText) { if ($0 ~ /<\/string>/) inText = 0; next }
    line = $0
    if (line ~ /^<\/?(ui|\?xml)[ >]/) next
    closes = line ~ /^ *<\//
    # Designer indents the first level, people don't: a file keeps to one of the two.
    if (base < 0) base = indent(line) == 1 ? 1 : 0
    wanted = base + depth - (closes ? 1 : 0)
    if (indent(line) != wanted) fault("indent by " wanted)
    opened = count(line, "<[A-Za-z]")
    closed = count(line, "</") + count(line, "/>")
    depth += opened - closed
    # The text of a property may run over lines, as it is shown.
    if (line ~ /<string[^>]*>/ && line !~ /<\/string>/ && line !~ /<string[^>]*\/>/) inText = 1
    if (inText) depth -= 1
    next
}

kind == "cmake" {
    code = $0
    gsub(/\\["\\]/, "", code)
    if (inString) {
        if (!sub(/^[^"]*"/, "", code)) next
        inString = 0
    } else if (open > 0) {
        sub(/#.*/, "", code)
        if (indent($0) <= 2 * depth && code !~ /^ *\)/ && code !~ /^ *$/)
            fault("indent by more than " 2 * depth)
    } else {
        sub(/#.*/, "", code)
        if (code ~ /^ *(endif|endfunction|endforeach|endmacro|endwhile|else|elseif)[ ]*\(/) depth--
        if (indent($0) != 2 * depth) fault("indent by " 2 * depth)
        if (code ~ /^ *(if|function|foreach|macro|while|else|elseif)[ ]*\(/) depth++
    }
    gsub(/"[^"]*"/, "", code)
    if (sub(/".*/, "", code)) inString = 1
    open += count(code, "[(]") - count(code, "[)]")
}
