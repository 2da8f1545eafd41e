#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/RunHeard.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgageRun.h"
#include "mortgages/mMortgage.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "support/TemporaryFolder.h"
#include "support/Words.h"

namespace tests {

namespace {

using mortgages::RunMode;
using platform::Date;
using testing::ElementsAre;
using testing::HasSubstr;

class MortgageRun : public testing::Test {
  protected:
    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

struct Story {
    const char* name;
    const char* fields; ///< set before, "Field=value" each
    Date today;
    const char* log; ///< day, category, period, total and flags of its rows
    const char* row; ///< Status, PmtStatus, DateUpdated, NextDue
};

TEST_F(MortgageRun, PostsWhatTheCalendarBrings) {
    // 100,000.00 at 6 percent over 360 months is 599.5505 a month.
    const Story kStories[] = {
        {"nothing before the first due day", "", Date(2024, 1, 14), "",
         "Current|OK|01/14/2024|01/15/2024"},
        {"due today is still in time", "", Date(2024, 1, 15),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|OK|01/15/2024|01/15/2024"},
        {"without grace late from the day after", "", Date(2024, 1, 16),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|Late|01/16/2024|01/15/2024"},
        {"closed for three months", "", Date(2024, 4, 14),
         "01/15/2024 Mortgage Payment 1 599.5505 1|02/15/2024 Mortgage Payment 2 599.5505 1|"
         "03/15/2024 Mortgage Payment 3 599.5505 1",
         "Current|Late|04/14/2024|01/15/2024"},
        {"with escrow, insurance and late fees",
         "EscrowAmount=250|PMI=40.5|LateFee=35|GracePeriod=10", Date(2024, 2, 25),
         "01/15/2024 Mortgage Payment 1 599.5505 1|01/15/2024 Mortgage Escrow 1 250 8|"
         "01/15/2024 PMI Payment 1 40.5 5|01/25/2024 Late Payment 1 35 7|"
         "02/15/2024 Mortgage Payment 2 599.5505 1|02/15/2024 Mortgage Escrow 2 250 8|"
         "02/15/2024 PMI Payment 2 40.5 5|02/25/2024 Late Payment 2 35 7",
         "Current|Late|02/25/2024|01/15/2024"},
        {"due within the grace", "GracePeriod=10", Date(2024, 1, 25),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|Due|01/25/2024|01/15/2024"},
        {"a grace without days has no fee", "LateFee=35", Date(2024, 1, 20),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|Late|01/20/2024|01/15/2024"},
        {"a negative grace", "LateFee=35|GracePeriod=-5", Date(2024, 1, 16),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|Late|01/16/2024|01/15/2024"},
        {"never run before", "DateUpdated=NULL", Date(2024, 1, 15),
         "01/15/2024 Mortgage Payment 1 599.5505 1", "Current|OK|01/15/2024|01/15/2024"},
        {"never run and far ahead", "DateUpdated=|FirstDue=06/15/2024|NextDue=06/15/2024",
         Date(2024, 1, 15), "", "Current|OK|05/15/2024|06/15/2024"},
        {"paid off", "CurrentPV=0|xPri=1000000|CurrentPeriod=2|NextDue=", Date(2024, 3, 20), "",
         "Closed|n/a|03/20/2024|"},
        {"a balance not known isn't none", "CurrentPV=NULL", Date(2024, 1, 10), "",
         "Current|OK|01/10/2024|01/15/2024"},
        {"without a next due date, on the calendar's own day", "NextDue=NULL", Date(2024, 1, 30),
         "01/28/2024 Mortgage Payment 1 599.5505 1", "Current|null|01/30/2024|null"},
        {"ends with its last period", "OrigPer=2", Date(2024, 6, 1),
         "01/15/2024 Mortgage Payment 1 50375.3117 1|"
         "02/15/2024 Mortgage Payment 2 50375.3117 1",
         "Current|Late|06/01/2024|01/15/2024"},
        {"goes on past a balloon", "BalloonMtg=True|BalloonPer=1", Date(2024, 2, 20),
         "01/15/2024 Mortgage Payment 1 599.5505 1|02/15/2024 Mortgage Payment 2 599.5505 1",
         "Current|Late|02/20/2024|01/15/2024"},
        {"due on a day that February lacks", "FirstDue=01/31/2024|NextDue=01/31/2024",
         Date(2024, 3, 31),
         "01/31/2024 Mortgage Payment 1 599.5505 1|02/29/2024 Mortgage Payment 2 599.5505 1|"
         "03/29/2024 Mortgage Payment 3 599.5505 1",
         "Current|Late|03/31/2024|01/31/2024"},
    };
    for (const Story& story : kStories) {
        SCOPED_TRACE(story.name);
        const support::TemporaryFolder folder;
        core::App().Connection.Close();
        const BooksWithOneMortgage books(folder.Path() / "db");
        for (const std::string& field : support::Split(story.fields))
            SetMortgageField(field.substr(0, field.find('=')), field.substr(field.find('=') + 1));
        RunMortgagesOn(story.today);
        std::vector<std::string> log = Log();
        for (std::string& row : log)
            std::ranges::replace(row, '|', ' ');
        EXPECT_EQ(log, support::Split(story.log));
        EXPECT_THAT(Rows("SELECT Status, PmtStatus, DateUpdated, NextDue FROM Mortgage"),
                    ElementsAre(story.row));
        const auto before = Log();
        RunMortgagesOn(story.today); // a second run of the day finds nothing left
        EXPECT_EQ(Log(), before);
    }
}

TEST_F(MortgageRun, SplitsABasePaymentByTheSchedule) {
    SetMortgageField("xPri", "0,120.25,0");
    RunMortgagesOn(Date(2024, 2, 15));
    EXPECT_THAT(
        Rows("SELECT Principal, PayDown, Interest, Other, Total, Description, IdTransaction "
             "FROM MortgageLog ORDER BY IdMortgageLog"),
        ElementsAre("99.5505|0|500|0|599.5505|Mortgage P & I Payment Due|0",
                    "100.0483|120.25|499.5022|0|719.8005|Mortgage P & I Payment Due|0"));
}

TEST_F(MortgageRun, RollsForwardOnceAndReprocessesAgain) {
    RunMortgagesOn(Date(2024, 1, 5));
    mortgages::UpdateMortgageById(kMortgageId, RunMode::RollForward);
    EXPECT_THAT(Log(), ElementsAre("01/15/2024|Mortgage Payment|1|599.5505|1"));
    EXPECT_THAT(Rows("SELECT DateUpdated FROM Mortgage"), ElementsAre("01/15/2024"));
    mortgages::UpdateMortgageById(kMortgageId, RunMode::RollForward);
    RunMortgagesOn(Date(2024, 1, 15));
    EXPECT_EQ(Log().size(), 1U);

    // Posted again, whether or not it stands in the log.
    mortgages::UpdateMortgageById(kMortgageId, RunMode::Reprocess);
    EXPECT_THAT(Log(), ElementsAre("01/15/2024|Mortgage Payment|1|599.5505|1",
                                   "01/15/2024|Mortgage Payment|1|599.5505|1"));
    mortgages::UpdateMortgageById(999, RunMode::Reprocess); // no such mortgage
}

TEST_F(MortgageRun, PassesOverAMortgageItCannotReckon) {
    core::App().Connection.Execute(
        "INSERT INTO Mortgage (IdMortgage, FirstDue, NextDue, DateUpdated, OrigPV, OrigPer, "
        "OrigRate) VALUES (300, 'soon', '01/15/2024', '12/31/2023', 1000, 12, 0.05)");
    platform::SetToday(Date(2024, 1, 15));
    RunHeard heard;
    mortgages::UpdateMortgages(heard);
    EXPECT_THAT(heard.posted,
                ElementsAre("3 201 Elm's loan: Mortgage Payment 01/15/2024 599.5505"));
    EXPECT_THAT(heard.failed, ElementsAre(HasSubstr("3 300 mortgage 300: ")));
    EXPECT_THAT(Rows("SELECT DateUpdated, Status FROM Mortgage WHERE IdMortgage = 300"),
                ElementsAre("12/31/2023|null"));
}

} // namespace

} // namespace tests
