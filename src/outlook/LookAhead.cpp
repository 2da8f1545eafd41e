#include "outlook/LookAhead.h"

#include <algorithm>

#include <fmt/core.h>

#include "books/PostTransaction.h"
#include "core/DailyRun.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/ScratchSession.h"
#include "leases/RentCodes.h"
#include "leases/SettleFromCredit.h"
#include "mortgages/MortgageCodes.h"
#include "outlook/ComingDays.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"
#include "platform/system/ThreadClock.h"
#include "platform/values/Text.h"

namespace outlook {

namespace {

Flow FlowOfEvent(std::int32_t idAutoEvent) {
    platform::Recordset event =
        core::Read("SELECT IEN FROM AutoEvent WHERE IdAutoEvent = ?", {idAutoEvent});
    if (event.Eof()) return Flow::Neither;
    switch (books::Ien{platform::ShortOf(event["IEN"])}) {
        case books::Ien::Income:
            return Flow::In;
        case books::Ien::Expense:
            return Flow::Out;
        case books::Ien::Unclassified:
            break;
    }
    return Flow::Neither;
}

Origin OriginOf(core::RecordKind recordKind, std::string_view category) {
    if (recordKind == core::kAutoEvent) return Origin::Event;
    const bool isLate = category == (recordKind == core::kLease ? leases::kCategoryLateFee
                                                                : mortgages::kCategoryLate);
    return isLate ? Origin::LateFee : Origin::Charge;
}

Flow FlowOf(core::RecordKind recordKind, std::int32_t id) {
    if (recordKind == core::kAutoEvent) return FlowOfEvent(id);
    return recordKind == core::kLease ? Flow::In : Flow::Out;
}

/// Returns the amount of a row. A payment from credit came in earlier, so it reduces what falls due
/// on the day.
platform::Currency AmountOf(core::RecordKind recordKind, const core::PostedRow& row) {
    const bool isFromCredit = recordKind == core::kLease && row.category == leases::kPaidFromCredit;
    return isFromCredit ? -row.amount : row.amount;
}

/// Records what the run on the copy posts.
class Recorder : public core::RunListener {
  public:
    explicit Recorder(Forecast& forecast) : forecast_(forecast) {}

    void Posted(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                const std::vector<core::PostedRow>& rows) override {
        const Flow flow = FlowOf(recordKind, id);
        for (const core::PostedRow& row : rows) {
            const std::string_view category = platform::Trim(row.category);
            forecast_.rows.push_back(
                {.date = row.date,
                 .origin = OriginOf(recordKind, category),
                 .recordKind = recordKind,
                 .recordId = id,
                 .name = std::string(description),
                 .what =
                     std::string(category.empty() ? core::RecordKindName(recordKind) : category),
                 .amount = AmountOf(recordKind, row),
                 .flow = flow});
        }
    }

    void Failed(core::RecordKind recordKind, std::int32_t /*id*/, std::string_view description,
                std::string_view reason) override {
        std::string fault =
            fmt::format("{}: {}", core::NameOfFailed(recordKind, description), reason);
        // The run of the later day fails as today's did.
        if (std::ranges::find(forecast_.faults, fault) == forecast_.faults.end())
            forecast_.faults.push_back(std::move(fault));
    }

  private:
    Forecast& forecast_;
};

} // namespace

Forecast LookAhead(const std::filesystem::path& books, platform::Date until,
                   const std::function<bool()>& stop) {
    Forecast forecast{platform::Today(), until, {}, {}};
    if (until < forecast.today) {
        throw platform::Error(
            fmt::format("{} is before today, {}", until.ToText(), forecast.today.ToText()));
    }
    const auto isStopped = [&stop] { return stop && stop(); };
    try {
        const core::ScratchSession copy(books, forecast.today, stop);
        AddComingDays(forecast);
        Recorder recorder(forecast);
        core::UpdateRecords(recorder);
        if (until > forecast.today) {
            platform::SetTodayOfThread(until); // the end of the session puts the day back
            core::UpdateRecords(recorder);
        }
    } catch (const platform::Error&) {
        if (!isStopped()) throw;
    }
    // After a failure the run continues with the next record, so a stop may look like many
    // failures.
    if (isStopped()) throw Stopped();
    std::ranges::stable_sort(forecast.rows, {}, &ForecastRow::date);
    return forecast;
}

} // namespace outlook
