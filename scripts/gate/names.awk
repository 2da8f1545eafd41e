# Holds the names that are local to the .cpp files of a folder against each other. A name can be
# used twice only for functions with different parameters, and for an alias of the same type.
# Prints the faults.

function fault(text) { print FILENAME ":" FNR ": " text }

# The types of a parameter list, without the parameters' names and default values.
function typesOf(list,    part, n, i, types) {
    n = split(list, part, ",")
    for (i = 1; i <= n; ++i) {
        sub(/ = .*/, "", part[i])
        gsub(/^ +| +$/, "", part[i])
        sub(/[ &*][A-Za-z_0-9]+$/, "", part[i])
        types = types part[i] ","
    }
    return types
}

# What a declaration that begins like this one declares: sets `name` and `what`.
function read(text,    head) {
    name = ""
    if (match(text, /^(struct|class|union|enum class|enum) [A-Za-z_0-9]+/)) {
        if (text ~ /;$/ && text !~ /\{/) return # only announced
        what = "type"
        name = substr(text, 1, RLENGTH)
        sub(/.* /, "", name)
    } else if (match(text, /^using [A-Za-z_0-9]+ = /)) {
        what = substr(text, RLENGTH)
        name = substr(text, 7, RLENGTH - 9)
    } else if (match(text, /^[^(={]*[ &*][A-Za-z_0-9]+\(/)) {
        head = substr(text, 1, RLENGTH - 1)
        list = substr(text, RLENGTH + 1)
        sub(/\)[^)]*$/, "", list)
        what = "(" typesOf(list)
        name = head
        sub(/.*[ &*]/, "", name)
        if (text ~ /;$/) name = "" # only declared
    } else if (match(text, /^[^(={;]*[ &*][A-Za-z_0-9]+(\[[^]]*\])*( =|\{|;)/)) {
        what = "value"
        head = substr(text, 1, RLENGTH)
        sub(/(\[[^]]*\])*( =|\{|;)$/, "", head)
        name = head
        sub(/.*[ &*]/, "", name)
    }
}

function add(    key, i, n, before) {
    read(pending)
    if (name == "") return
    key = folder SUBSEP name
    n = split(uses[key], before, "\n")
    for (i = 1; i <= n; ++i) {
        if (before[i] == "" || fileOf[key, before[i]] == FILENAME) continue
        if (what ~ /^\(/ && before[i] != what && before[i] ~ /^\(/) continue
        if (what ~ /^[= ]/ && before[i] == what) continue
        fault(name " is a name of " fileOf[key, before[i]] " too")
        return
    }
    if (!((key, what) in fileOf)) {
        fileOf[key, what] = FILENAME
        uses[key] = uses[key] "\n" what
    }
}

FNR == 1 {
    folder = FILENAME
    sub(/\/[^\/]*$/, "", folder)
    isLocal = 0
    pending = ""
}

/^using (enum|namespace) / { fault("belongs inside the function that uses it") }

/^namespace \{/ { isLocal = 1; next }
/^\} \/\/ namespace$/ { isLocal = 0; pending = ""; next }
!isLocal { next }

# A declaration begins in the first column and ends with its brace, its semicolon or its value.
pending == "" && /^[A-Za-z]/ && !/^(template|namespace|using [a-z_]+::)/ { pending = $0 }
pending != "" {
    if (pending != $0) {
        line = $0
        sub(/^ +/, "", line)
        pending = pending " " line
    }
    sub(/ *\/\/.*/, "", pending)
    if (pending ~ /[{;]$/ || pending ~ /[^=]= /) {
        add()
        pending = ""
    }
}
