#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/RunReason.h"
#include "mortgages/MortgageCodes.h"
#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// A row that the walk adds to the mortgage log.
struct Charge {
    LogFlags flags = LogFlags::BasePayment;
    platform::Date date;
    std::int16_t period = 0;
    platform::Currency principal;
    platform::Currency payDown;
    platform::Currency interest;
    platform::Currency other;
    /// The due date of the charge; for a late fee, the due date whose days of grace are over.
    platform::Date due;

    platform::Currency Total() const { return principal + payDown + interest + other; }
};

struct ChargeWords {
    std::string_view category;
    std::string_view description;
};
/// Returns the category and description of a charge posted by the run.
ChargeWords WordsOf(LogFlags flags);
/// Returns the kind of row that the run posts with these flags.
core::Posting PostingOf(LogFlags flags);
core::RunReason ReasonOf(const Charge& charge);

/// The work of a run besides catching the mortgage up to today.
enum class RunMode {
    CatchUp,
    RollForward, ///< on to the next due date, for an owner who pays ahead
    Reprocess,   ///< again from a month before the next due date, whatever was posted since
};

/// The fields of a mortgage's row, besides its loan, that the daily run uses.
struct RunTerms {
    /// Reads the current row. Throws FieldError if a date isn't valid.
    static RunTerms Read(platform::Recordset& row);

    platform::Date firstDue;
    platform::Date nextDue;
    /// The last day already charged; unset before the first run.
    platform::Date dateUpdated;
    int graceDays = 0;
    platform::Currency escrow;
    platform::Currency pmi;
    platform::Currency lateFee;

    /// Return the day before the first day of a run, and its last day.
    platform::Date Start(RunMode mode) const;
    platform::Date Target(RunMode mode, platform::Date today) const;
};

/// Walks a mortgage day by day from the day after `from` to `to`. Without a next due date the due
/// days are counted from the calendar's zero.
std::vector<Charge> WalkMortgage(const clsMortgage& mortgage, const RunTerms& terms,
                                 platform::Date from, platform::Date to);

} // namespace mortgages
