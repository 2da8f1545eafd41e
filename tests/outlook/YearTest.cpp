#include <gmock/gmock.h>

#include <functional>

#include "alerts/PortfolioPicture.h"
#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "outlook/LookAhead.h"
#include "platform/system/Clock.h"
#include "search/Finder.h"
#include "shell/Registrations.h"
#include "shell/RunHistory.h"
#include "shell/SampleLife.h"
#include "support/Books.h"

namespace {

using core::App;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

class AYear : public tests::CoreProcess {};

/// The look ahead, the search and the picture only read the books; the history is kept beside them.
TEST_F(AYear, IsTheSameWithWhatIsUsedBesideTheRun) {
    const Date made(2026, 11, 21);
    shell::RegisterLogic();
    constexpr int kUnits = 10;
    shell::MakeSamplePortfolio(Folder() / "sample", kUnits, made);
    const auto year = [&](const std::function<bool()>& use) {
        App().Connection.Close();
        std::filesystem::remove_all(Folder() / "books");
        std::filesystem::copy(Folder() / "sample", Folder() / "books");
        App().Connection.Open(Folder() / "books" / "Vestrel.mdb");
        for (int month = 1; month <= 12; ++month) {
            platform::SetToday(DateAdd(Interval::Month, month, made));
            EXPECT_TRUE(use());
            core::UpdateRecords();
        }
        return support::Dump(App().Connection);
    };
    const auto without = year([] { return true; });
    const auto keepsHistory = [] {
        shell::RunDigest digest;
        shell::RunAndRecord(digest);
        return !shell::ReadHistory(shell::HistoryFile(App().Connection), platform::Today())
                    .runs.empty();
    };
    const auto looksAhead = [] {
        const Date until = DateAdd(Interval::Day, 90, platform::Today());
        return !outlook::LookAhead(App().Connection.File(), until).rows.empty();
    };
    const auto searches = [] {
        search::Finder finder(App().Connection);
        while (!finder.Step()) {
        }
        return !finder.Find("rent", 50).empty();
    };
    const auto draws = [] { return alerts::GetPortfolioPicture().occupancy.units == kUnits; };
    EXPECT_EQ(year(keepsHistory), without);
    EXPECT_EQ(year(looksAhead), without);
    EXPECT_EQ(year(searches), without);
    EXPECT_EQ(year(draws), without);
}

} // namespace
