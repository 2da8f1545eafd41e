#!/usr/bin/env bash
# Every form has its help page, and the contents name every page: help.sh [TREE]
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
enterTree "$@"

pages=share/help
base='([A-Za-z_]+::)*((Record|Entry)?Form|frmWizard)'
kWithoutPage='frmAbout|frmHelp|frmWizard' # the last is what wizards are made of

forms=$(find src -path '*/screens/frm*.h' \
    -exec sed -nE "s/^class (frm[A-Za-z0-9]+)( final)? : public $base .*/\1/p" {} + |
    grep -vxE "$kWithoutPage" | sort || true)
if [ -z "$forms" ]; then
    verdict "no forms in $PWD" "" "there is nothing to look at"
fi
told=$(sed -E 's/^ +//; /^$/d' "$pages/contents.txt" | sort)
there=$(find "$pages" -name '*.html' -printf '%f\n' | sed 's/\.html$//' | sort)
faults=$(
    comm -23 <(echo "$forms") <(echo "$there") | sed "s|.*|&: has no page in $pages|"
    comm -13 <(echo "$told") <(echo "$there") | sed "s|.*|&.html: not listed in contents.txt|"
    comm -23 <(echo "$told") <(echo "$there") | sed "s|.*|&: listed in contents.txt, but not there|"
    uniq -d <<<"$told" | sed "s|.*|&: listed twice in contents.txt|"
)
verdict "$faults" "$(wc -l <<<"$forms") forms have their help" \
    "write the pages, and name them in $pages/contents.txt"
