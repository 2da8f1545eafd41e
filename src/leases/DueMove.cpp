#include "leases/DueMove.h"

#include "core/Rows.h"
#include "leases/LeaseTerms.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace leases {

using platform::Date;

namespace {

/// Moves a due date step by step, as payments move it.
Date Step(std::string_view termType, Date due, int periods) {
    const int step = periods < 0 ? -1 : 1;
    for (; periods != 0; periods -= step)
        due = DateAdd(TermInterval(termType), step, due);
    return due;
}

} // namespace

std::optional<DueMove> ReadDueMove(std::int32_t idLease, int periods) {
    platform::Recordset lease = core::Read(
        "SELECT TermType, DateNextDue, [Option], OptionCredit FROM Lease WHERE IdLease = ?",
        {idLease});
    if (lease.Eof()) return std::nullopt;
    DueMove move;
    move.from = move.to = DateOf(lease["DateNextDue"]);
    if (move.from.IsSet()) move.to = Step(TextOf(lease["TermType"]), move.from, periods);
    if (FlagOf(lease["Option"])) move.optionCredit = MoneyOf(lease["OptionCredit"]);
    return move;
}

Date DueBefore(std::string_view termType, Date due, int periods, Date oldest) {
    if (oldest.IsSet() && Step(termType, oldest, periods) == due) return oldest;
    return Step(termType, due, -periods);
}

} // namespace leases
