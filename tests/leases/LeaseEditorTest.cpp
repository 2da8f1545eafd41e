#include "leases/LeaseEditor.h"

#include "core/Configuration.h"
#include "core/Globals.h"
#include "leases/BooksTest.h"
#include "leases/LeaseCommands.h"
#include "platform/system/Clock.h"
#include "support/ScriptedDialogs.h"

namespace tests {

namespace {

using leases::AvailabilityOf;
using leases::LeaseAge;
using leases::LeaseAvailability;
using leases::LeaseCommand;
using platform::Currency;
using platform::Date;

class LeaseEditor : public BooksTest {};

TEST_F(LeaseEditor, ProposesTheFirstOfTheNextMonthAndTheSettings) {
    core::Config().TermType = "Year(s)";
    core::Config().Term = 2;
    core::Config().OneTimeFee = Currency::FromUnits(35);
    core::Config().NoticeDays = 45;
    for (const auto& [today, first] : {std::pair{Date(2024, 1, 31), "02/01/2024"},
                                       {Date(2024, 2, 1), "03/01/2024"},
                                       {Date(2023, 12, 15), "01/01/2024"}}) {
        platform::SetToday(today);
        platform::Recordset row;
        leases::ProposeLease(row);
        for (const auto* date : {"DateActive", "DateRenewed", "DateNextDue"})
            EXPECT_EQ(row[date].AsText(), first);
        EXPECT_EQ(row["DateVacating"].AsText(), "");
        EXPECT_EQ(row["TermType"].AsText(), "Year(s)");
        EXPECT_EQ(row["Term"].AsInteger(), 2);
        EXPECT_EQ(row["OneTimeFee"].AsCurrency(), Currency::FromUnits(35));
        EXPECT_EQ(row["NoticeDays"].AsInteger(), 45);
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Lease"), "1") << "nothing is stored";
}

TEST_F(LeaseEditor, TellsAllThatIsWrong) {
    EXPECT_EQ(leases::LeaseErrors({}),
              (Lines{"A unit must be specified.", "A tenant must be specified.",
                     "Rent rate should not be zero.", "A next due date must be specified."}));
    EXPECT_EQ(leases::LeaseErrors({1, 2, Currency::FromScaled(1), true}), Lines{});
    EXPECT_EQ(leases::LeaseErrors({1, 0, Currency::FromUnits(-5), true}),
              Lines{"A tenant must be specified."});
}

TEST_F(LeaseEditor, AllowsWhatTheStatusAllows) {
    const LeaseAvailability running = {.giveNotice = true,
                                       .breakLease = true,
                                       .dateActive = false,
                                       .dateVacating = false,
                                       .blankVacating = true};
    const LeaseAvailability over = {.renewLease = true, .dateActive = false};
    for (const auto& [status, expected] : std::vector<std::pair<const char*, LeaseAvailability>>{
             {"Pending", {.breakLease = true, .dateVacating = false, .blankVacating = true}},
             {"Contracted", running},
             {"WTW", running},
             {"MTM", running},
             {"Notice", {.cancelNotice = true, .dateActive = false}},
             {"Expired", over},
             {"Broken", over},
             {"", {}},
             {"pending", {}}}) {
        EXPECT_EQ(AvailabilityOf(LeaseAge::Stored, status), expected) << status;
    }
    EXPECT_EQ(AvailabilityOf(LeaseAge::New, "Contracted"),
              (LeaseAvailability{
                  .runs = false, .dateRenewed = false, .dateVacating = false, .parties = true}));
}

TEST_F(LeaseEditor, CommandsAskInTheirOwnWords) {
    support::ScriptedDialogs person({true});
    EXPECT_TRUE(leases::AskWhether(LeaseCommand::GiveNotice));
    EXPECT_FALSE(leases::AskWhether(LeaseCommand::RollForward));
    for (const LeaseCommand command : {LeaseCommand::BreakLease, LeaseCommand::CancelNotice,
                                       LeaseCommand::RenewLease, LeaseCommand::Reprocess})
        leases::AskWhether(command);
    Lines titles;
    for (const support::Prompt& said : person.Heard())
        titles.push_back(said.title);
    EXPECT_EQ(titles, (Lines{"Give Notice?", "Confirm Roll Forward", "Break Lease?",
                             "Cancel Notice?", "Renew Lease?", "Confirm Reprocess"}));
    EXPECT_EQ(person.Heard()[0].text,
              "Giving notice to this lease will change some options avaliable\n"
              "and allow you to set a vacating date for the tenant.\n"
              "Do you want to continue?");
}

} // namespace

} // namespace tests
