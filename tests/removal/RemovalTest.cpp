#include <gmock/gmock.h>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "removal/DeleteRecord.h"
#include "removal/PortfolioFixture.h"
#include "support/Cases.h"
#include "support/ScriptedDialogs.h"
#include "support/Words.h"

namespace {

using removal::Confirm;
using removal::DeleteRecord;
using removal::Tell;
using testing::ElementsAreArray;

class Removal : public tests::Portfolio {};

TEST_F(Removal, TakesAndChangesTheToldRowsAlone) {
    const auto file = std::filesystem::path(VESTREL_TEST_DATA) / "Removal.cases";
    support::ForEachCase(file, "removals", [this](const support::Case& one) {
        const platform::UnitOfWork rolledBack(core::App().Connection);
        EXPECT_TRUE(DeleteRecord(one.Number<core::RecordKind>("kind"),
                                 one.Number<std::int32_t>("record"), Confirm::DontAsk,
                                 Tell::Nobody));
        EXPECT_EQ(Changes(), support::Split(one["changes"]));
    });
}

TEST_F(Removal, OfNoRecordTouchesNothing) {
    for (const core::RecordKind kind :
         {core::kAccount, core::kBuilding, core::kUnit, core::kTenant}) {
        EXPECT_FALSE(DeleteRecord(kind, 0, Confirm::DontAsk));
        removal::RemoveRecord(kind, 0);
    }
    EXPECT_THAT(Changes(), ElementsAreArray(std::vector<std::string>{}));
}

// A unit that stands in no building must not take what belongs to no building with it.
TEST_F(Removal, OfAUnitWithoutABuildingLeavesTheDepositsOfAll) {
    Run("UPDATE Unit SET IdBuilding = 0 WHERE IdUnit = 204");
    EXPECT_TRUE(DeleteRecord(core::kUnit, 204, Confirm::DontAsk));
    EXPECT_THAT(Changes(), ElementsAreArray({"Unit 204"}));
}

TEST_F(Removal, OfATenantWithTwoLeasesFreesTheUnitsOfThoseThatRun) {
    Run("UPDATE Lease SET IdTenant = 301 WHERE IdLease = 702");
    Run("UPDATE Lease SET IdTenant = 301, Status = 'Broken' WHERE IdLease = 703");
    EXPECT_TRUE(DeleteRecord(core::kTenant, 301, Confirm::DontAsk));
    EXPECT_THAT(Changes(), ElementsAreArray({"Lease 701", "Lease 702", "Lease 703", "RentLog 717",
                                             "Tenant 301", "Transactions 801 DebitId=0",
                                             "Unit 202 Status=Avaliable"}));
}

TEST_F(Removal, TakesTheFilesOfARecordOfAnyKind) {
    for (const char* sql :
         {"UPDATE FileObject SET dbType = 4, IdOwner = 77 WHERE IdFileObject = 670",
          "UPDATE FileObject SET dbType = 5, IdOwner = 77 WHERE IdFileObject = 671"}) {
        Run(sql);
    }
    removal::RemoveRecord(core::kAlert, 77);
    EXPECT_EQ("2", Ask("SELECT Count(*) FROM FileObject"));
    EXPECT_EQ("1", Ask("SELECT Count(*) FROM FileObject WHERE IdFileObject = 671"));
}

struct PaymentCase {
    const char* name;
    std::int32_t id;
    const char* setUp;
    bool removeCharges;
    std::string which; ///< items that the question names
    const char* changes;
};

TEST_F(Removal, OfAPaymentAsksWhatBecomesOfItsCharges) {
    const char* nothing = "UPDATE Lease SET Term = Term";
    const char* rentGone = "RentLog 716|RentLog 718|RentLog 719|RentLog 720|Transactions 801";
    const std::vector<PaymentCase> cases = {
        {"rent, charges gone too", 801, nothing, true, "rent", rentGone},
        {"rent, charges open again", 801, nothing, false, "rent",
         "RentLog 716 IdTransaction=0|RentLog 718 IdTransaction=0|RentLog 719|RentLog 720|"
         "Transactions 801"},
        {"a subsidy", 801, "UPDATE Transactions SET Class = 2 WHERE IdTransaction = 801", true,
         "rent", rentGone},
        {"a deposit", 800, nothing, false, "rent",
         "RentLog 713 IdTransaction=0|RentLog 714|Transactions 800"},
        {"a loan's payment, charges gone too", 805, nothing, true, "mortgage",
         "MortgageLog 912|MortgageLog 913|MortgageLog 914|Transactions 805"},
        {"a loan's payment, charges open again", 805, nothing, false, "mortgage",
         "MortgageLog 912 IdTransaction=0|MortgageLog 913|MortgageLog 914|Transactions 805"},
    };
    for (const PaymentCase& one : cases) {
        SCOPED_TRACE(one.name);
        const platform::UnitOfWork takenBack(core::App().Connection);
        Run(one.setUp);
        support::ScriptedDialogs dialogs({one.removeCharges});
        EXPECT_TRUE(DeleteRecord(core::kTransaction, one.id, Confirm::DontAsk));
        ASSERT_EQ(1U, dialogs.Heard().size());
        EXPECT_EQ("Confirm Removal", dialogs.Heard()[0].title);
        EXPECT_EQ("Do you want to remove associated " + one.which +
                      " items? If not, these items will no\nlonger be associated with any "
                      "transaction and will now show up as unpaid.",
                  dialogs.Heard()[0].text);
        EXPECT_EQ(Changes(), support::Split(one.changes));
    }
}

// A lease that was removed leaves its posted rows behind; they go with their payment.
TEST_F(Removal, OfAPaymentTakesTheRowsOfALeaseThatHasGone) {
    EXPECT_TRUE(DeleteRecord(core::kLease, 701, Confirm::DontAsk));
    support::ScriptedDialogs dialogs({false});
    removal::RemoveRecord(core::kTransaction, 801);
    EXPECT_EQ("0", Ask("SELECT Count(*) FROM RentLog WHERE IdLease = 701"));
    EXPECT_EQ("0", Ask("SELECT IdTransaction FROM RentLog WHERE IdRentLog = 716"));
}

} // namespace
