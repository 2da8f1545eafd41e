#include "leases/LeaseWizard.h"

#include <fmt/core.h>
#include <gmock/gmock.h>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/Lists.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/BooksTest.h"

namespace tests {

namespace {

using leases::LeaseWizardEntry;
using leases::LeaseWizardErrors;
using leases::LeaseWizardStep;
using platform::Currency;
using platform::Date;

class LeaseWizard : public BooksTest {
  protected:
    LeaseWizard() {
        core::ConfigValues& config = core::Config();
        config.ExpireOption = "Renew";
        config.DefaultRentAccount = 105;
        config.DefaultDepositAccount = 106;
        config.DailyFee = Currency::FromUnits(2);
        config.DailyDays = 10;
        config.EvictDays = 60;
        config.NoticeDays = 30;
    }
    static LeaseWizardEntry Entry() {
        return {.idUnit = kUnitId,
                .idTenant = kTenantId,
                .startDate = Date(2024, 2, 1),
                .rent = Currency::FromUnits(700),
                .lateFee = Currency::FromUnits(25),
                .lateDays = 5};
    }
    static std::string Field(std::int32_t id, std::string_view field) {
        return Ask(fmt::format("SELECT {} FROM Lease WHERE IdLease = {}", field, id));
    }
};

TEST_F(LeaseWizard, MakesALeaseAsIfItHadRunSinceItsStart) {
    Run("INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount) "
        "VALUES (300, 0, 0, True, 'Damage', 200)");
    const std::int32_t id = leases::FinishLeaseWizard(Entry());
    EXPECT_EQ(Rows("SELECT IdUnit, IdTenant, Hide, Selected, DateCreated, DateActive, DateRenewed, "
                   "DateNextDue, DateUpdated, Status, RentStatus, TermType, Term, ExpireOption, "
                   "RentAccount, DepositAccount, Subs, OneTimeFee, OneTimeDays, DailyFee, "
                   "EvictDays, [Option], LastPaid, PetList, Notes, DepositDue FROM Lease WHERE "
                   "IdLease = " +
                   std::to_string(id)),
              (Lines{"102|103|False|False|03/05/2024|02/01/2024|02/01/2024|02/01/2024|03/05/2024|"
                     "Contracted|Warning|Month(s)|12|Renew|105|106|False|25|5|2|60|False|0||"
                     "Added by Lease Wizard|200"}));
    // Two rents, the one-time fee of the first, and the daily fee from the eleventh day.
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 1"), "2");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Amount = 25"), "1");
    EXPECT_EQ(Field(id, "RentDue"), Ask("SELECT Sum(Amount) FROM RentLog WHERE Class = 1"));
    EXPECT_EQ(Ask("SELECT Status FROM Unit"), "Leased");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant"), "Current");
}

TEST_F(LeaseWizard, ALeaseOfAnotherDayWaitsForIt) {
    LeaseWizardEntry entry = Entry();
    entry.startDate = Date(2024, 4, 1);
    entry.termType = "Week(s)";
    const std::int32_t id = leases::FinishLeaseWizard(entry);
    EXPECT_EQ(Field(id, "Status"), "Pending");
    EXPECT_EQ(Field(id, "RentStatus"), "OK");
    EXPECT_EQ(Ledger(), Lines{});
}

TEST_F(LeaseWizard, MakesItsPropertyAndItsTenantWhereTheyAreNew) {
    LeaseWizardEntry entry = Entry();
    entry.newProperty = entry.newTenant = true;
    entry.address = "9 O'Hare Ct";
    entry.city = "Salem";
    entry.state = "OR";
    entry.zip = "97301";
    entry.lastName = "D'Arcy";
    std::vector<int> told;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        told.push_back(core::KindNumber(kind));
    });
    const std::int32_t id = leases::FinishLeaseWizard(entry);
    const std::string unit = Field(id, "IdUnit");
    const std::string tenant = Field(id, "IdTenant");
    EXPECT_EQ(Ask("SELECT B.Address + '|' + B.City + '|' + B.State + '|' + B.Zip + '|' + B.County "
                  "+ '|' + B.Notes FROM Building AS B, Unit AS U WHERE B.IdBuilding = U.IdBuilding "
                  "AND U.IdUnit = " +
                  unit),
              "9 O'Hare Ct|Salem|OR|97301||Added by Lease Wizard");
    EXPECT_EQ(Ask("SELECT Rent FROM Unit WHERE Status = 'Leased' AND IdUnit = " + unit), "700");
    EXPECT_EQ(Ask("SELECT LastName FROM Tenant WHERE Status = 'Current' AND IdTenant = " + tenant),
              "D'Arcy");
    EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 102"), "Hold") << "the others stay";
    core::ChoiceList leases;
    EXPECT_NO_THROW(core::FillList(core::kLease, leases)) << "the new records have no gaps";
    EXPECT_EQ(leases.Rows().size(), 2U);
    for (const core::RecordKind kind : {core::kBuilding, core::kUnit, core::kTenant, core::kLease})
        EXPECT_NE(std::find(told.begin(), told.end(), core::KindNumber(kind)), told.end())
            << core::RecordKindName(kind);
}

TEST_F(LeaseWizard, TestsEachStepByItself) {
    struct Case {
        LeaseWizardStep step;
        LeaseWizardEntry entry;
        Lines lines;
    };
    const Lines none;
    for (const Case& c : std::vector<Case>{
             {LeaseWizardStep::Introduction, {}, none},
             {LeaseWizardStep::Property, {}, {"A valid property has not been selected."}},
             {LeaseWizardStep::Property, {.idUnit = 5}, none},
             {LeaseWizardStep::Property,
              {.newProperty = true, .idUnit = 5, .address = "  "},
              {"A valid address has not been entered."}},
             {LeaseWizardStep::Property, {.newProperty = true, .address = "1 Elm"}, none},
             {LeaseWizardStep::Tenant, {}, {"A valid tenant has not been selected."}},
             {LeaseWizardStep::Tenant, {.idTenant = 5}, none},
             {LeaseWizardStep::Tenant,
              {.newTenant = true, .idTenant = 5},
              {"A valid last name has not been entered."}},
             {LeaseWizardStep::Tenant, {.newTenant = true, .lastName = "Zu"}, none},
             {LeaseWizardStep::Terms, {}, none},
             {LeaseWizardStep::Summary, {}, {"A valid start date has not been selected."}},
             {LeaseWizardStep::Summary, {.startDate = Date(2024, 2, 29)}, none}}) {
        EXPECT_EQ(LeaseWizardErrors(c.step, c.entry), c.lines);
    }
}

TEST_F(LeaseWizard, RefusesAUnitOrTenantThatWasDeletedMeanwhile) {
    for (const auto& [field, party] :
         {std::pair{&LeaseWizardEntry::idUnit, "unit"}, {&LeaseWizardEntry::idTenant, "tenant"}}) {
        LeaseWizardEntry entry = Entry();
        entry.*field = 4711;
        EXPECT_THAT([&] { leases::FinishLeaseWizard(entry); },
                    testing::ThrowsMessage<platform::ConflictError>(
                        testing::StartsWith("The " + std::string(party) + " was deleted")));
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Lease"), "1");
}

} // namespace

} // namespace tests
