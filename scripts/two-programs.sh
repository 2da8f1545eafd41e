#!/usr/bin/env bash
# Lets two programs work on the same books at the same time, at random, and checks that the books
# are afterwards as if one had waited for the other: two-programs.sh VESTRELCTL [SECONDS [SEED]]
# Takes ten minutes unless told otherwise, and is therefore no part of ./test.
#
# Each round draws two commands, runs them at the same time on the books, and one after the other,
# in both orders, on two copies. The books must be equal to one of the copies. Record numbers may
# differ, since each program takes its own; what the records say may not.
set -euo pipefail

vestrelctl=$(realpath "$1")
seconds=${2:-600}
seed=${3:-$$}
RANDOM=$seed

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config
day=0

# run FOLDER ARGUMENT...: runs the companion on one of the copies.
run() { "$vestrelctl" --data "$scratch/$1" --today "$today" "${@:2}" </dev/null; }

today() { date -u -d "2024-05-31 +$day days" +%m/%d/%Y; }

# All that the books hold, without the numbers of the records made here.
dump() {
    "$vestrelctl" --data "$scratch/$1" sql - <<'END'
SELECT * FROM Lease ORDER BY IdLease;
SELECT * FROM Mortgage ORDER BY IdMortgage;
SELECT * FROM AutoEvent ORDER BY IdAutoEvent;
SELECT NextId FROM Configuration;
SELECT IdUnit, Status FROM Unit ORDER BY 1;
SELECT IdLease, SettleCharges FROM LeaseCredit ORDER BY 1;
SELECT c.IdLease, p.DatePosted, p.Amount, p.Category, o.DatePosted AS Paid, o.Amount AS Ahead, IIf(c.IdReturn = 0, 0, 1) AS Returned, IIf(p.IdTransaction = 0, 0, 1) AS Spent FROM (RentCredit AS c INNER JOIN RentLog AS p ON c.IdRentLog = p.IdRentLog) INNER JOIN RentLog AS o ON c.IdOrigin = o.IdRentLog ORDER BY 1, 2, 3, 4, 5, 6, 7, 8;
SELECT IdTenant, Status FROM Tenant ORDER BY 1;
SELECT EntryDate, Description FROM Alerts ORDER BY 1, 2;
SELECT DateEffective, DebitId, DebitDesc, CreditId, CreditDesc, Amount, CheckNum, TaxCategory, IEN, Class, Flags, Description, IdTenant, IdBuilding, IdUnit, IdLease, IdMortgage FROM Transactions ORDER BY 1, 2, 4, 6, 7, 8, 12, 13, 14, 15, 16, 17;
SELECT RentLog.IdLease, RentLog.DatePosted, RentLog.Class, RentLog.Category, RentLog.Amount, RentLog.Description, RentLog.Flags, IIf(RentLog.IdTransaction = 0, 0, 1) AS Paid, Transactions.DateEffective, Transactions.Amount AS Payment, Transactions.CheckNum FROM RentLog LEFT JOIN Transactions ON RentLog.IdTransaction = Transactions.IdTransaction ORDER BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11;
SELECT MortgageLog.IdMortgage, MortgageLog.DatePosted, MortgageLog.Period, MortgageLog.Category, MortgageLog.Principal, MortgageLog.Interest, MortgageLog.Total, MortgageLog.Flags, IIf(MortgageLog.IdTransaction = 0, 0, 1) AS Paid, Transactions.DateEffective, Transactions.Amount AS Payment, Transactions.CheckNum FROM MortgageLog LEFT JOIN Transactions ON MortgageLog.IdTransaction = Transactions.IdTransaction ORDER BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12;
END
}

# idsOf SELECT: the first column of the rows.
idsOf() { "$vestrelctl" --data "$scratch/books" sql "$1" | sed 1d; }

pick() { echo "${@:1+RANDOM%$#:1}"; }

# draw CHECK: one command of a program, a word a line. Payments carry CHECK, so that a charge paid
# twice shows.
draw() {
    case $((RANDOM % 14)) in
        0 | 1 | 2) printf '%s\n' pay "$lease" --class "$(pick 1 1 1 2 3)" --check "$1" ;;
        3 | 10 | 11)
            printf '%s\n' pay "$lease" --class "$(pick 1 1 1 2 3)" --check "$1" \
                --amount "$((RANDOM % 3000 + 1)).50" --rent-part "$(pick open open paid)"
            ;;
        12) printf '%s\n' return-payment "$payment" --fee "$(pick 0 25)" ;;
        13) printf '%s\n' credit "$lease" --settle "$(pick on on off)" ;;
        4 | 5) printf '%s\n' pay-mortgage "$mortgage" --check "$1" ;;
        6 | 7) printf '%s\n' update ;;
        8)
            printf '%s\n' post --debit "account:$account" --credit name:Store \
                --amount "$((RANDOM % 500)).25" --category Repairs --lease "$lease" --check "$1"
            ;;
        9)
            printf '%s\n' sql "$(pick \
                "UPDATE Lease SET Rent = Rent + 1 WHERE IdLease = $lease" \
                "UPDATE Lease SET OneTimeFee = OneTimeFee + 1" \
                "DELETE * FROM RentLog WHERE IdLease = $lease AND IdTransaction = 0 AND Flags = 0" \
                "UPDATE AutoEvent SET Amount = Amount + 1" \
                "UPDATE Mortgage SET EscrowAmount = EscrowAmount + 1 WHERE IdMortgage = $mortgage")"
            ;;
    esac
}

# copy FROM TO
copy() {
    rm -rf "${scratch:?}/$2"
    cp -r "$scratch/$1" "$scratch/$2"
}

# Both at the same time, the second a moment later. A command that is refused is as good as one that
# is done; its words go to FOLDER.said.
together() {
    runAs first "${first[@]}" &
    sleep "0.0$((RANDOM % 3))$((RANDOM % 10))"
    runAs second "${second[@]}" &
    wait
}

# runAs NAME ARGUMENT...: keeps what the command says and its exit status.
runAs() {
    local status=0
    run books "${@:2}" >"$scratch/$1.said" 2>&1 || status=$?
    echo "$status" >"$scratch/$1.status"
}

inTurn() {
    local folder=$1
    shift
    for command in "$@"; do
        local -n words=$command
        run "$folder" "${words[@]}" >>"$scratch/$folder.said" 2>&1 || true
    done
}

today=$(today)
"$vestrelctl" --today "$today" init --sample --units 6 "$scratch/books"
idsOf "UPDATE AutoEvent SET Enabled = True, IntervalPeriod = 1 WHERE EventType = 1" >/dev/null
mapfile -t leases < <(idsOf "SELECT IdLease FROM Lease WHERE Status <> 'Expired' AND Status <> 'Broken'")
mapfile -t mortgages < <(idsOf "SELECT IdMortgage FROM Mortgage WHERE Status <> 'Closed'")
mapfile -t accounts < <(idsOf "SELECT IdAccount FROM Account WHERE AccountType = 'Bank'")

rounds=0 asFirst=0 asSecond=0 either=0 refused=0
SECONDS=0
while [ "$SECONDS" -lt "$seconds" ]; do
    rounds=$((rounds + 1))
    # Most rounds on a new day, so that there is something to charge and to pay.
    day=$((day + RANDOM % 9))
    today=$(today)
    lease=$(pick "${leases[@]}") mortgage=$(pick "${mortgages[@]}") account=$(pick "${accounts[@]}")
    # One of the last payments of a lease, so that some are returned twice.
    payment=$(pick $(idsOf "SELECT TOP 5 IdTransaction FROM Transactions WHERE Class BETWEEN 1 AND 3 AND Flags = 0 ORDER BY IdTransaction DESC"))
    [ $((RANDOM % 3)) -gt 0 ] || run books update >/dev/null 2>&1 || true
    mapfile -t first < <(draw "A$rounds")
    # Every second time the other program does the very same.
    if [ $((RANDOM % 2)) -eq 0 ]; then
        second=("${first[@]/A$rounds/B$rounds}")
    else
        mapfile -t second < <(draw "B$rounds")
    fi
    copy books before
    copy books firstThenSecond
    copy books secondThenFirst
    together
    inTurn firstThenSecond first second
    inTurn secondThenFirst second first
    for folder in books firstThenSecond secondThenFirst; do
        dump $folder >"$scratch/$folder.dump"
    done
    same=
    ! cmp -s "$scratch/books.dump" "$scratch/firstThenSecond.dump" || same+=F
    ! cmp -s "$scratch/books.dump" "$scratch/secondThenFirst.dump" || same+=S
    case $same in
        FS) either=$((either + 1)) ;;
        F) asFirst=$((asFirst + 1)) ;;
        S) asSecond=$((asSecond + 1)) ;;
        *)
            echo "round $rounds of seed $seed, $today: the books are as neither order leaves them"
            echo "  first:  ${first[*]}"
            sed 's/^/    /' "$scratch/first.said"
            echo "  second: ${second[*]}"
            sed 's/^/    /' "$scratch/second.said"
            echo "  against the first, then the second:"
            diff "$scratch/firstThenSecond.dump" "$scratch/books.dump" | head -20 || true
            echo "  against the second, then the first:"
            diff "$scratch/secondThenFirst.dump" "$scratch/books.dump" | head -20 || true
            exit 1
            ;;
    esac
    if grep -qv '^0$' "$scratch/first.status" "$scratch/second.status"; then
        refused=$((refused + 1))
    fi
done
echo "two programs, ${SECONDS} s, seed $seed: $rounds rounds, all as one order leaves the books:" \
    "$asFirst as the first before the second, $asSecond the other way round, $either as both;" \
    "$refused in which a command was refused"
