#!/usr/bin/env bash
# Brings the books up to date and shows how they stand, in the terminal:
# show-books.sh VESTRELCTL [--data DIR] [--today mm/dd/yyyy]
set -euo pipefail

vestrelctl=("$@")

# asColumns [FIRST]: rows of CSV, quoted texts included, as aligned columns from the FIRST on, figures
# to the right.
asColumns() {
    awk -v first="${1:-1}" '
        function cellsOf(line, row,    n, text) {
            line = line ","
            for (n = 1; line != ""; n++) {
                if (match(line, /^"([^"]|"")*",/)) {
                    text = substr(line, 2, RLENGTH - 3)
                    gsub(/""/, "\"", text)
                } else {
                    match(line, /^[^,]*,/)
                    text = substr(line, 1, RLENGTH - 1)
                }
                line = substr(line, RLENGTH + 1)
                cell[row, n] = text
                if (text ~ /^[-(]?[0-9.,]+[%)]?$/) isFigure[n] = 1
                if (length(text) > width[n]) width[n] = length(text)
                if (n > columns) columns = n
            }
        }
        { cellsOf($0, NR) }
        END {
            for (row = 1; row <= NR; row++) {
                line = ""
                for (c = first; c <= columns; c++)
                    line = line sprintf(isFigure[c] ? "  %*s" : "  %-*s", width[c], cell[row, c])
                sub(/ +$/, "", line)
                print line
            }
        }'
}

echo
echo "Bringing the books up to date"
"${vestrelctl[@]}" update </dev/null | sed 's/^/  /'

# Two tables, separated by an empty line; their headings and the records' numbers are for programs.
alerts=$("${vestrelctl[@]}" alerts </dev/null)
echo
echo "What needs attention"
attention=$(sed '1d; /^$/,$d' <<<"$alerts" | asColumns 3)
echo "${attention:-  Nothing.}"
echo
echo "The portfolio"
sed '1,/^$/d' <<<"$alerts" | sed 1d | asColumns

echo
echo "Rent, by how it stands"
"${vestrelctl[@]}" sql "SELECT RentStatus AS [Rent], Count(*) AS [Leases], \
Sum(RentDue) AS [Rent Due], Sum(SubsDue) AS [Subsidy Due], Sum(DepositBalance) AS [Deposits Held] \
FROM Lease GROUP BY RentStatus ORDER BY RentStatus" </dev/null | asColumns
