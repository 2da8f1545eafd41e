#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "mortgages/MortgageCodes.h"
#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// One row that the walk puts into the mortgage log.
struct Charge {
    LogFlags flags = LogFlags::BasePayment;
    platform::Date date;
    std::int16_t period = 0;
    platform::Currency principal;
    platform::Currency payDown;
    platform::Currency interest;
    platform::Currency other;

    platform::Currency Total() const { return principal + payDown + interest + other; }
};

struct ChargeWords {
    std::string_view category;
    std::string_view description;
};
/// The words that the log keeps about a charge of the run.
ChargeWords WordsOf(LogFlags flags);

/// How a run treats the mortgage beyond the plain catching up to today.
enum class RunMode {
    CatchUp,
    RollForward, ///< on to the next due date, for an owner who pays ahead
    Reprocess,   ///< again from a month before the next due date, whatever was posted since
};

/// What the run knows of a mortgage beside its schedule: fields of its row.
struct RunTerms {
    /// Reads the current row; a date that is none is a FieldError.
    static RunTerms Read(platform::Recordset& row);

    platform::Date firstDue;
    platform::Date nextDue;
    /// Last day already charged; unset before the first run.
    platform::Date dateUpdated;
    int graceDays = 0;
    platform::Currency escrow;
    platform::Currency pmi;
    platform::Currency lateFee;

    /// The day after which a run begins, and the last one that it is about.
    platform::Date Start(RunMode mode) const;
    platform::Date Target(RunMode mode, platform::Date today) const;
};

/// Walks a mortgage day by day from the day after `from` to `to`. Without a next due date the due
/// days are reckoned from the calendar's zero.
std::vector<Charge> WalkMortgage(const clsMortgage& mortgage, const RunTerms& terms,
                                 platform::Date from, platform::Date to);

} // namespace mortgages
