#!/usr/bin/env bash
# What is made from the help of the programs: manual pages and completion; and the first start from a
# clone. selftest.sh VESTRELCTL [OTHER_PROGRAM]...
set -euo pipefail

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
vestrelctl=$(realpath "$1")
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# Every option and command that a program's help lists has its heading in the page.
checkPage() {
    local program=$1 page name
    page=$("$project/scripts/package/man-page.sh" "$program" tool 'other(1)')
    for section in NAME SYNOPSIS OPTIONS 'SEE ALSO'; do
        grep -qx "\.SH $section" <<<"$page" || fail "$program: no section $section"
    done
    {
        "$program" --help
        "$program" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p' | while read -r name; do
            echo "@$name"
            "$program" "$name" --help
        done
    } | grep -oE '^ +(-h,)?(--[a-z-]+|/[a-z]+)|^@.*' | sed 's/^ *//; s/-h,//' | sort -u | while read -r name; do
        name=${name//-/\\-}
        case $name in
            @*) grep -qxF ".SS ${name#@}" <<<"$page" || echo "$name" ;;
            *) grep -F '\fB' <<<"$page" | grep -qF -e "$name" || echo "$name" ;;
        esac
    done >"$scratch/missing"
    [ ! -s "$scratch/missing" ] || fail "$program: not in its page: $(tr '\n' ' ' <"$scratch/missing")"
    if command -v groff >/dev/null; then
        groff -man -ww -z -Tutf8 <<<"$page" 2>"$scratch/warnings" || true
        [ ! -s "$scratch/warnings" ] || fail "$program: $(cat "$scratch/warnings")"
    fi
}

# entryOf NAME: the lines of the page of a small help from the heading of an entry to the next.
checkEntry() {
    local got
    got=$(awk -v entry="\\\\fB$1\\\\fR" '
        $0 == entry { inside = 1; next } /^\.(TP|S)/ { inside = 0 } inside' <<<"$smallPage" | tr '\n' '/')
    [ "$got" = "$2" ] || fail "entry $1: '$got', not '$2'"
}

# completes EXPECTED WORD...: the words that are offered for the last one.
completes() {
    local expected=$1
    shift
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    _vestrel "$vestrelctl" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}" ||
        fail "completion of '$*' fails"
    [ "${COMPREPLY[*]}" = "$expected" ] || fail "completion of '$*': '${COMPREPLY[*]}', not '$expected'"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for program in "$@"; do
    checkPage "$program"
done

cat >"$scratch/small" <<'END'
#!/bin/sh
[ "$1" = --version ] && echo "small 2.0" && exit
cat <<'HELP'
Does it, in short.
Usage: small [OPTIONS]

Options:
  -h,--help                   Print this help
  --data DIR REQUIRED         The .books
                              of all
  --twelve-letters-and-so ab  Starts in its own column
  --a-name-that-fills-its FILE Excludes: --data
                              On the next line
  --units INT:INT in [1 - 9]=4 Needs: --data
                              How many
  /altdb=NAME                 Other ones
HELP
END
chmod +x "$scratch/small"
smallPage=$("$project/scripts/package/man-page.sh" "$scratch/small" small)
grep -q '^small \\- does it, in short$' <<<"$smallPage" || fail "the summary is not the name's"
checkEntry '\-h, \-\-help' 'Print this help/'
checkEntry '\-\-data DIR' 'The .books/of all/(required)/'
checkEntry '\-\-twelve\-letters\-and\-so ab' 'Starts in its own column/'
checkEntry '\-\-a\-name\-that\-fills\-its FILE' 'On the next line/(not with \-\-data)/'
checkEntry '\-\-units [1 \- 9]' 'How many/(only with \-\-data; by default 4)/'
checkEntry '/altdb=NAME' 'Other ones/'

. "$project/share/completion/vestrelctl"
mkdir "$scratch/here" "$scratch/here/books"
touch "$scratch/here/all.csv"
cd "$scratch/here"
completes 'pay pay-mortgage' vestrelctl pa
completes '--read-only --reports' vestrelctl --re
completes 'books' vestrelctl --data ''
completes 'init import-text' vestrelctl --data books i
completes 'csv qif iif' vestrelctl --data books export --format ''
completes '0 3' vestrelctl post --class ''
completes '' vestrelctl pay --check ''
completes '--list' vestrelctl restore --l
completes 'all.csv' vestrelctl import-text a

# The first start's sample is one, wherever an interrupted start has left off, and the second start
# leaves it alone.
export XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
sample=$scratch/data/Vestrel/sample
mkdir -p "$sample"
echo 'half of it' >"$sample/Vestrel.mdb.new"
for start in first second; do
    "$project/scripts/make-sample.sh" "$vestrelctl" --today 11/22/2026 >"$scratch/$start"
done
grep -q 'Making a sample' "$scratch/first" || fail "the first start makes no sample"
[ ! -s "$scratch/second" ] || fail "the second start: $(cat "$scratch/second")"
"$vestrelctl" --today 11/22/2026 init --sample --reset --units 2 "$sample" || fail "it can't be reset"
[ "$("$vestrelctl" sql 'SELECT Count(*) FROM Unit' | tail -n 1)" = 2 ] || fail "it is not the new one"

[ "$failures" -eq 0 ] || exit 1
echo "pages of $# programs, completion: as their help says"
