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

class LeaseEditor : public BooksTest {
  protected:
    /// Saves a new lease of the unit and the tenant, with one field of its own.
    static void SaveNew(std::string_view field, std::string_view value) {
        platform::Recordset row;
        leases::ProposeLease(row);
        row["IdLease"].Set(std::int32_t{900});
        row["IdUnit"].Set(kUnitId);
        row["IdTenant"].Set(kTenantId);
        row["Rent"].Set(Currency::FromUnits(800));
        row["DateRenewed"].Set("01/01/1999");
        row[field].Set(value);
        leases::SaveLease(row, LeaseAge::New);
    }
    static std::string New(std::string_view field) {
        return Ask("SELECT " + std::string(field) + " FROM Lease WHERE IdLease = 900");
    }
};

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

TEST_F(LeaseEditor, ANewLeaseTakesItsStatusFromItsDatesAndUnitAndTenantFollow) {
    core::Config().DefaultRentAccount = 105;
    core::Config().DefaultDepositAccount = 106;
    core::Config().TermType = "Month(s)";
    core::Config().Term = 12;
    struct Case {
        const char* active;
        const char* status;
        const char* rentStatus;
    };
    for (const Case& c :
         {Case{"04/01/2024", "Pending", "OK"}, Case{"03/05/2024", "Contracted", "OK"},
          Case{"02/01/2023", "Contracted", "OK"}}) {
        SCOPED_TRACE(c.active);
        Run("DELETE * FROM Lease WHERE IdLease = 900");
        Run("UPDATE Unit SET Status = 'Hold'");
        Run("UPDATE Tenant SET Status = 'Approved'");
        SaveNew("DateActive", c.active);
        EXPECT_EQ(New("Status"), c.status);
        EXPECT_EQ(New("RentStatus"), c.rentStatus);
        EXPECT_EQ(New("DateRenewed"), c.active);
        EXPECT_EQ(New("DateCreated"), "03/05/2024");
        EXPECT_EQ(New("RentAccount"), "105");
        EXPECT_EQ(New("DepositAccount"), "106");
        EXPECT_EQ(Ask("SELECT Status FROM Unit"), "Leased");
        EXPECT_EQ(Ask("SELECT Status FROM Tenant"), "Current");
    }
}

TEST_F(LeaseEditor, ANewLeaseIsChargedTheDepositsOfItsUnitOnce) {
    for (const auto* values : {"1, 0, 0, True, 'Global', 100", "2, 104, 0, False, 'Building', 20",
                               "3, 0, 102, False, 'Unit', 3", "4, 0, 999, False, 'Other', 5000",
                               "5, 0, 0, True, 'Free', 0"})
        Run("INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount) "
            "VALUES (" +
            std::string(values) + ")");
    SaveNew("DateActive", "03/05/2024");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM RentLog WHERE IdLease = 900 AND Class = 3 "
                  "AND Category = 'Deposit' AND Flags = 0 AND DatePosted = '03/05/2024'"),
              "123");
    EXPECT_EQ(New("DepositDue"), "123");
    platform::Recordset row;
    leases::ReadBalances(row, 900);
    leases::SaveLease(row, LeaseAge::Stored);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdLease = 900"), "3");
}

TEST_F(LeaseEditor, SavingAStoredLeaseLeavesUnitAndTenantUnlessItsStatusChanges) {
    SetLeaseField("DateRenewed", "01/01/2024");
    Run("UPDATE Unit SET Status = 'Hold'");
    platform::Recordset row;
    leases::ReadBalances(row, kLeaseId);
    leases::SaveLease(row, LeaseAge::Stored);
    EXPECT_EQ(Ask("SELECT Status FROM Unit"), "Hold");
    leases::ReadBalances(row, kLeaseId);
    row["TermType"].Set("WTW");
    leases::SaveLease(row, LeaseAge::Stored);
    EXPECT_EQ(Ask("SELECT Status FROM Lease"), "WTW");
    EXPECT_EQ(Ask("SELECT Status FROM Unit"), "Leased");
}

TEST_F(LeaseEditor, AStartDayThatIsNoneIsRefusedWhole) {
    EXPECT_THROW(SaveNew("DateActive", ""), platform::FieldError);
    EXPECT_EQ(New("IdLease"), "-");
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

TEST_F(LeaseEditor, CommandsMoveTheStatusWithUnitAndTenant) {
    struct Case {
        const char* before;
        const char* active;
        LeaseCommand command;
        int noticeDays;
        const char* status;
        const char* vacating;
        const char* unit;
        const char* tenant;
    };
    for (const Case& c : {Case{"Contracted", "01/01/2024", LeaseCommand::GiveNotice, 30, "Notice",
                               "04/04/2024", "Leased", "Current"},
                          Case{"MTM", "01/01/2024", LeaseCommand::GiveNotice, 0, "Notice",
                               "03/05/2024", "Leased", "Current"},
                          Case{"Contracted", "01/01/2024", LeaseCommand::BreakLease, 30, "Broken",
                               "03/05/2024", "Avaliable", "Archived"},
                          Case{"Pending", "06/01/2024", LeaseCommand::BreakLease, 30, "Broken",
                               "03/05/2024", "Avaliable", "Archived"},
                          Case{"Notice", "01/01/2024", LeaseCommand::CancelNotice, 30, "Contracted",
                               "", "Leased", "Current"},
                          Case{"Notice", "06/01/2024", LeaseCommand::CancelNotice, 30, "Pending",
                               "", "Leased", "Current"},
                          Case{"Broken", "01/01/2024", LeaseCommand::RenewLease, 30, "Contracted",
                               "", "Leased", "Current"},
                          Case{"Expired", "01/01/2020", LeaseCommand::RenewLease, 30, "MTM", "",
                               "Leased", "Current"}}) {
        SCOPED_TRACE(std::string(c.before) + " to " + c.status);
        SetLeaseField("Status", c.before);
        SetLeaseField("DateActive", c.active);
        SetLeaseField("DateRenewed", c.active);
        Run("UPDATE Unit SET Status = 'Hold'");
        Run("UPDATE Tenant SET Status = ''");
        leases::RunCommand(c.command, kLeaseId, c.noticeDays);
        EXPECT_EQ(Ask("SELECT Status FROM Lease"), c.status);
        EXPECT_EQ(Ask("SELECT DateVacating FROM Lease"), c.vacating);
        EXPECT_EQ(Ask("SELECT Status FROM Unit"), c.unit);
        EXPECT_EQ(Ask("SELECT Status FROM Tenant"), c.tenant);
    }
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
