#include <gmock/gmock.h>

#include <algorithm>

#include <fmt/core.h>

#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "outlook/LookAhead.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "shell/Registrations.h"
#include "shell/RunDigest.h"
#include "shell/SampleLife.h"
#include "shell/TakeBack.h"

namespace {

using core::App;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using Lines = std::vector<std::string>;

class LookAheadAfterTakingBack : public tests::CoreProcess {};

std::string LineOf(std::int32_t id, Date day, std::string_view what, platform::Currency amount) {
    return fmt::format("{} {} {} {}", id, day.ToText(), platform::Trim(what),
                       platform::MoneyToText(amount));
}

TEST_F(LookAheadAfterTakingBack, ForetellsNoRowThatWasTakenBack) {
    const Date made(2026, 11, 21);
    const Date run = DateAdd(Interval::Month, 2, made);
    const Date until = DateAdd(Interval::Month, 3, made);
    shell::RegisterLogic();
    constexpr int kUnits = 10;
    shell::MakeSamplePortfolio(Folder() / "books", kUnits, made);
    App().Connection.Open(Folder() / "books" / "Vestrel.mdb");
    // Rows that are settled on their day can't be taken back.
    core::Execute("DELETE * FROM LeaseCredit");
    platform::SetToday(run);
    shell::RunDigest digest;
    core::UpdateRecords(digest);
    std::vector<shell::DigestRow> taken;
    for (std::size_t i = 0; i < digest.Rows().size(); i += 3) {
        if (digest.Rows()[i].recordKind == core::kLease) taken.push_back(digest.Rows()[i]);
    }
    ASSERT_GT(taken.size(), 5U);
    shell::TakeBack(taken);
    // The leases go back to the day before the run, so that its days are charged a second time.
    core::Execute("UPDATE Lease SET DateUpdated = ? WHERE DateUpdated = ?",
                  {made.ToText(), run.ToText()});

    Lines foretold;
    for (const outlook::ForecastRow& row :
         outlook::LookAhead(App().Connection.File(), until).rows) {
        if (row.recordKind == core::kLease && row.origin != outlook::Origin::Day)
            foretold.push_back(LineOf(row.recordId, row.date, row.what, row.amount));
    }
    shell::RunDigest later;
    core::UpdateRecords(later);
    platform::SetToday(until);
    core::UpdateRecords(later);
    Lines posted;
    for (const shell::DigestRow& row : later.Rows()) {
        if (row.recordKind == core::kLease)
            posted.push_back(LineOf(row.recordId, row.date, row.category, row.amount));
    }
    EXPECT_THAT(foretold, testing::UnorderedElementsAreArray(posted));
    EXPECT_GT(foretold.size(), 2 * taken.size()) << "the other rows of these days";
    for (const shell::DigestRow& row : taken) {
        EXPECT_THAT(foretold, testing::Not(testing::Contains(
                                  LineOf(row.recordId, row.date, row.category, row.amount))));
    }
}

} // namespace
