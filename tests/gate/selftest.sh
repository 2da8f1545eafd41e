#!/usr/bin/env bash
# Proves that each check of the gate can fail: plants a fault in a small tree that passes, runs the
# check on it, and expects the failure with the words that name the fault.
set -euo pipefail

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
sound=$scratch/sound

# put FILE: writes standard input to FILE, making its folder.
put() {
    mkdir -p "$(dirname "$1")"
    cat >"$1"
}

makeSoundTree() {
    mkdir -p "$sound"
    cp "$project/.clang-format" "$project/.clang-tidy" "$sound"
    cd "$sound"
    put docs/architecture.md <<'END'
| Folder | What |
|---|---|
| `src/core` | a |
| `src/leases` | b |
| `src/leases/screens` | c |
| `src/platform/database` | d |
| `src/platform/system` | e |
| `src/platform/values` | f |

| Floor | Logic | Screens |
|---|---|---|
| 8 | `kestrom`, `vestrelctl` | |
| 4 | `leases`, `mortgages` | `leases/screens`, `mortgages/screens` |
| 1 | `core`, `store` | `core/screens` |
| 0 | `platform` | `platform/qt` |
END
    put src/platform/values/Sum.h <<'END'
#pragma once

int Sum(int left, int right);
END
    put src/platform/values/Sum.cpp <<'END'
#include "platform/values/Sum.h"

int Sum(int left, int right) {
    return left + right;
}
END
    put src/platform/system/Clock.cpp <<'END'
#include <ctime>

long Now() {
    return std::time(nullptr);
}
END
    put src/platform/database/Engine.cpp <<<'#include <SQLiteCpp/Database.h>'
    # From before what counts as changed, and not clean.
    put src/core/Old.cpp <<'END'
int* Nothing() {
    return 0;
}
END
    put src/core/Shared.h <<<'#include "platform/values/Sum.h"'
    put src/leases/Lease.h <<<'#include "core/Shared.h"'
    put src/leases/screens/frmLease.h <<'END'
#include <QWidget>

#include "leases/Lease.h"
#include "ui_frmLease.h"

class frmLease : public core::forms::RecordForm {};
END
    put src/leases/screens/frmLease.ui <<'END'
<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
<widget class="QDialog" name="frmLease"/>
</ui>
END
    put src/core/CMakeLists.txt <<<'vestrel_room(core USES platform_values)'
    put scripts/run.sh <<<'echo done'
    put share/help/frmLease.html <<<'<title>Lease</title>'
    put share/help/contents.txt <<<'frmLease'
    local file
    for file in src/platform/values/Sum.cpp src/core/Old.cpp; do
        printf '{"directory": "TREE", "command": "c++ -std=c++20 -ITREE/src -c %s", "file": "TREE/%s"},' \
            "$file" "$file"
    done | sed '1s/^/[/; $s/,$/]/' | put build/test/compile_commands.json.in

    git init -q
    echo /build/ >.gitignore
    git add -A
    commitAt '3 days ago'
    echo "// The sum of two numbers." >>src/platform/values/Sum.cpp
    git add -A
    commitAt now
}

commitAt() {
    local when
    when=$(date -d "$1" '+%s +0000')
    GIT_AUTHOR_DATE=$when GIT_COMMITTER_DATE=$when \
        git -c user.name=gate -c user.email=gate@localhost commit -q -m "As it stood"
}

# A copy of the sound tree at $scratch/tree, where the compile commands are right.
freshTree() {
    rm -rf "$scratch/tree"
    cp -r "$sound" "$scratch/tree"
    sed "s|TREE|$scratch/tree|g" "$sound/build/test/compile_commands.json.in" \
        >"$scratch/tree/build/test/compile_commands.json"
}

failures=0
complain() {
    echo "FAILED: $1"
    sed 's/^/    /' "$scratch/said"
    failures=$((failures + 1))
}

runCheck() { "$project/scripts/gate/$1.sh" "${@:2}" "$scratch/tree" >"$scratch/said" 2>&1; }

# passes CHECK [OPTION]: the tree as it stands has no fault.
passes() {
    runCheck "$@" || complain "$* fails a tree without faults"
}

# finds WORDS CHECK [OPTION]: the tree as it stands fails the check, which says WORDS.
finds() {
    if runCheck "${@:2}"; then
        complain "${*:2} passes a tree in which it should find: $1"
    elif ! grep -qF -- "$1" "$scratch/said"; then
        complain "${*:2} fails, but doesn't say: $1"
    fi
}

# plant FILE LINE: a fresh tree with LINE at the end of FILE.
plant() {
    freshTree
    mkdir -p "$(dirname "$scratch/tree/$1")"
    printf '%b\n' "$2" >>"$scratch/tree/$1"
}

# planted FILE LINE WORDS CHECK: LINE at the end of FILE is a fault that CHECK finds.
planted() {
    plant "$1" "$2"
    finds "$3" "$4"
}

makeSoundTree
freshTree
for check in format layout includes names links clock braces folders sizes help english tidy; do
    passes "$check"
done

values=src/platform/values/Sum.cpp
lease=src/leases/Lease.h
planted $values 'int  Twice( int n );' $values format
planted $values 'int* None() {\n    return 0;\n}' modernize-use-nullptr tidy
planted src/platform/values/Sum.h '\ninline int* None() {\n    return 0;\n}' modernize-use-nullptr tidy
planted $values 'int broken' 'expected' tidy

planted $lease '#include <QString>' 'logic never includes Qt' includes
planted src/core/Shared.h '#include "QtWidgets/QLabel"' 'logic never includes Qt' includes
planted src/core/Shared.h '#include "leases/Lease.h"' 'floor 1 may not use floor 4' includes
planted src/core/Shared.h '#include "store/Tables.h"' 'floor 1 may not use floor 1' includes
planted $values '  #  include "core/Shared.h"' 'platform knows nothing of property' includes
planted $lease '#include "leases/screens/frmLease.h"' 'logic never uses screens' includes
planted src/leases/screens/frmLease.h '#include "mortgages/screens/frmMortgage.h"' \
    'floor 4 may not use floor 4' includes
planted $lease '#include "vestrelctl/Command.h"' 'nothing uses a program' includes
planted $lease '#include <SQLiteCpp/Statement.h>' 'only platform/database sees the engine' includes
planted $values '#include <sqlite3.h>' \
    'only platform/database sees the engine' includes
planted $lease '#include "Lease.h"' "doesn't say its room" includes
planted $lease '#include "garden/Shed.h"' 'there is no room garden' includes
planted src/garden/Shed.h '#pragma once' 'the floor table has no room garden' includes
freshTree
sed -i '/^| [0-9]/d' "$scratch/tree/docs/architecture.md"
finds 'has no floor table' includes

for clock in 'auto t = std::chrono::system_clock::now();' 'auto t = std::time(nullptr);' \
    'auto t = ::time( NULL );' 'gettimeofday(&t, nullptr);' 'auto d = QDate::currentDate();' \
    'auto d = QDateTime::currentDateTimeUtc();' 'localtime_r(&t, &d);' \
    "auto s = \"date('now')\";" 'auto s = "DEFAULT CURRENT_TIMESTAMP";' 'auto d = __DATE__;'; do
    planted $lease "$clock" "$lease:" clock
done
planted tests/leases/LeaseTest.cpp 'auto t = std::time(nullptr);' tests/leases/LeaseTest.cpp: clock
plant $lease '// std::time(nullptr) is not for us\nauto t = runtime(0), s = row.time(0);'
passes clock

for list in 'return {.day = 1, .debit = {1, 2}};' '    .debit = {kAccount,' 'f({.debit = {' \
    '    .debit={1, "a"}};'; do
    planted src/core/Shared.h "$list" src/core/Shared.h: braces
done
plant src/core/Shared.h '// .debit = {1, 2}\n    .debit = Party{1, 2}, .none = {},\nrow.debit = {1, 2};'
passes braces

# keepLocal FILE DECLARATION: adds a name that the file keeps to itself.
keepLocal() {
    mkdir -p "$scratch/tree/src/core"
    printf 'namespace {\n\n%b\n\n} // namespace\n' "$2" >>"$scratch/tree/src/core/$1"
}
while IFS='|' read -r first second; do
    freshTree
    keepLocal A.cpp "$first"
    keepLocal B.cpp "$second"
    finds 'src/core/B.cpp:3:' names
done <<'END'
constexpr int kMost = 1;|constexpr long kMost = 2;
constexpr int kMost[2] = {1, 2};|constexpr std::array kMost = {
struct Row {|class Row {
int Step(int from) {|struct Step {
int Sum(int left, const Row& right) {|int Sum(int a, const Row& b) {
using Row = core::Row;|using Row = leases::Row;
END
freshTree
keepLocal A.cpp 'int Sum(int left, int right) {'
keepLocal A.cpp 'using Row = core::Row;'
keepLocal B.cpp 'int Sum(int left,\n        Row right) {'
keepLocal B.cpp 'using Row = core::Row;'
keepLocal B.cpp 'int Total(int left);'
keepLocal C.cpp 'int Total(int left) {'
mkdir "$scratch/tree/src/core/inner"
keepLocal inner/D.cpp 'struct Sum {'
passes names
planted src/core/A.cpp 'using enum Kind;' 'belongs inside the function' names
plant src/core/CMakeLists.txt 'set_source_files_properties(A.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)'
keepLocal A.cpp 'struct Row {'
keepLocal B.cpp 'struct Row {'
passes names

planted src/core/inner/New.h '#pragma once' 'src/core/inner: not listed' folders
freshTree
rm -r "$scratch/tree/src/leases/screens"
finds 'src/leases/screens: listed in docs/architecture.md, but not there' folders
# shellcheck disable=SC2016
planted docs/architecture.md '| `src/core` | again |' 'src/core: listed twice' folders

planted src/core/Big.cpp "$(printf '// x\\n%.0s' {1..400})" 'src/core/Big.cpp: 401 lines' sizes
plant src/core/Big.cpp "$(printf '// x\\n%.0s' {1..399})"
passes sizes

planted src/leases/screens/frmRent.h 'class frmRent : public Form {' 'frmRent: has no page' help
planted share/help/lost.html '<title>Lost</title>' 'lost.html: not listed in contents.txt' help
planted share/help/contents.txt ' nowhere' 'nowhere: listed in contents.txt, but not there' help
planted share/help/contents.txt frmLease 'frmLease: listed twice' help

form=src/leases/screens/frmLease.ui
planted $form ' <a/>' "$form:5: indent by 0" layout
planted $form '<a>\n<b/>\n</a>' "$form:6: indent by 1" layout
planted $form '<a/> ' "$form:5: a blank at the end" layout
planted src/core/CMakeLists.txt 'if(TRUE)\nset(A)\nendif()' 'src/core/CMakeLists.txt:3: indent by 2' layout
planted src/core/CMakeLists.txt 'set(A\nB)' 'src/core/CMakeLists.txt:3: indent by more than 0' layout
planted src/core/CMakeLists.txt '\tset(A)' 'src/core/CMakeLists.txt:2: a tab' layout
planted scripts/run.sh 'if true; then\necho\nfi' 'scripts/run.sh: run shfmt' layout

planted src/core/CMakeLists.txt 'vestrel_room(extra USES leases)' 'links leases, which nothing' links
planted src/core/CMakeLists.txt 'vestrel_room(extra\n  USES platform_values platform_qt\n)' \
    'links platform_qt, which nothing' links

while IFS='|' read -r line words; do
    planted $values "$line" "write \"$words\"" english
done <<'END'
// The balance is reckoned anew.|again, or recalculate
// Tells the person that it failed.|the user
// A failed statement is taken back.|rolled back, or undone
// Names, parted by blanks.|separated by
// The charges that hang from a lease.|belongs to, or depends on
// A lease that failed is passed over.|skipped
// A name that is none.|say what it is not: isn't valid, doesn't exist
const char* kFault = "'x' is no date";|is not a ...
// The row has gone.|was deleted
// The balance is that of the loan.|repeat the noun
// Moves as told.|is reported, or is described in
// The row was changed meanwhile.|in the meantime
throw Error("The statement yields no rows.");|returns no
END
planted src/core/Shared.h '/// What a lease owes today.' 'name the thing instead of "What ..."' english
planted docs/page.md 'The person chooses a file.' 'write "the user"' english
plant $values '// There is no account to pay from; null if there is none.\nint meanwhile = 0;'
passes english

# What hasn't changed for long is looked at with --all alone; what passed is kept as passed.
freshTree
passes tidy
finds src/core/Old.cpp tidy --all
freshTree
rm "$scratch/tree/build/test/compile_commands.json"
finds 'holds no compile_commands.json' tidy

if [ $failures -gt 0 ]; then
    echo "$failures of the gate's checks don't do what they are for"
    exit 1
fi
echo "every check of the gate can fail"
