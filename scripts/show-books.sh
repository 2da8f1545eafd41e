#!/usr/bin/env bash
# Brings the books up to date and shows how they stand, in the terminal:
# show-books.sh VESTRELCTL [--data DIR] [--today mm/dd/yyyy]
set -euo pipefail

vestrelctl=("$@")

# Rows of CSV, quoted texts included, as aligned columns; what isn't text stands to the right.
asColumns() {
    awk '
        function cellsOf(line, row,    n, text) {
            n = 0
            line = line ","
            while (line != "") {
                if (match(line, /^"([^"]|"")*",/)) {
                    text = substr(line, 2, RLENGTH - 3)
                    gsub(/""/, "\"", text)
                } else {
                    match(line, /^[^,]*,/)
                    text = substr(line, 1, RLENGTH - 1)
                    if (row > 1 && text != "") isNumber[n + 1] = 1
                }
                line = substr(line, RLENGTH + 1)
                cell[row, ++n] = text
                if (length(text) > width[n]) width[n] = length(text)
            }
            if (n > columns) columns = n
        }
        { cellsOf($0, NR) }
        END {
            for (row = 1; row <= NR; row++) {
                line = ""
                for (c = 1; c <= columns; c++)
                    line = line sprintf(isNumber[c] ? "  %*s" : "  %-*s", width[c], cell[row, c])
                sub(/ +$/, "", line)
                print line
            }
        }'
}

echo
echo "Bringing the books up to date"
"${vestrelctl[@]}" update </dev/null | sed 's/^/  /'

if "${vestrelctl[0]}" alerts --help >/dev/null 2>&1; then
    echo
    echo "What needs attention"
    "${vestrelctl[@]}" alerts </dev/null | asColumns
fi

echo
echo "Rent, by how it stands"
"${vestrelctl[@]}" sql "SELECT RentStatus AS [Rent], Count(*) AS [Leases], \
Sum(RentDue) AS [Rent Due], Sum(SubsDue) AS [Subsidy Due], Sum(DepositBalance) AS [Deposits Held] \
FROM Lease GROUP BY RentStatus ORDER BY RentStatus" </dev/null | asColumns
