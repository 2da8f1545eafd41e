#include <gmock/gmock.h>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "removal/DeleteRecord.h"
#include "removal/PortfolioFixture.h"
#include "support/ScriptedDialogs.h"
#include "support/Words.h"

namespace {

using removal::Confirm;
using removal::DeleteRecord;
using removal::Tell;
using testing::ElementsAreArray;

struct RemovalCase {
    const char* name;
    std::int16_t kind;
    std::int32_t id;
    const char* changes; ///< separated by bars
};

const std::vector<RemovalCase>& RemovalCases() {
    static const std::vector<RemovalCase> cases = {
        {"a bank on either side of transactions", core::kAccount, 400,
         "Account 400|AutoEvent 920 DebitId=0|Transactions 800 CreditId=0|"
         "Transactions 801 CreditId=0|Transactions 802 DebitId=0|Transactions 803 DebitId=0|"
         "Transactions 804 CreditId=0|Transactions 805 DebitId=0|Transactions 806 CreditId=0|"
         "Transactions 806 DebitId=0"},
        {"an owner of two buildings", core::kAccount, 401,
         "Account 401|OwnerLink 420|OwnerLink 421 IsPrimary=True|OwnerLink 422"},
        {"a manager", core::kAccount, 403, "Account 403|ManagerLink 430"},
        {"a running lease, its posted rows staying", core::kLease, 700,
         "AutoEvent 920 IdLease=0|Lease 700|RentLog 710|RentLog 711|RentLog 712|RentLog 715|"
         "Tenant 300 Status=Archived|Unit 200 Status=Avaliable"},
        {"a lease that ended, whose unit may be let again", core::kLease, 702, "Lease 702"},
        {"a loan, its posted rows staying", core::kMortgage, 900,
         "AutoEvent 920 IdMortgage=0|Mortgage 900|MortgageLog 910|MortgageLog 911"},
        {"a tenant with a lease", core::kTenant, 300,
         "AutoEvent 920 IdLease=0|AutoEvent 920 IdTenant=0|Incident 630|Incident 631|Lease 700|"
         "RentLog 710|RentLog 711|RentLog 712|RentLog 715|Tenant 300|Transactions 800 DebitId=0|"
         "Transactions 803 CreditId=0|Unit 200 Status=Avaliable"},
        {"a work order", core::kWorkOrder, 600,
         "AutoEvent 920 IdWorkOrder=0|WOItem 610|WorkOrder 600"},
        {"an incident", core::kIncident, 630, "Incident 630"},
        {"an appliance that work is done on", core::kAppliance, 510,
         "Appliance 510|SvcContract 621 IdAppliance=0|WorkOrder 600 IdAppliance=0"},
        {"a room", core::kRoom, 500, "Room 500"},
        {"an ordinary transaction", core::kTransaction, 802, "Transactions 802"},
        {"a transaction of no class", core::kTransaction, 806, "Transactions 806"},
        {"a trip", core::kMileage, 930, "Mileage 930"},
        {"the primary owner, another becoming so", core::kOwner, 420,
         "OwnerLink 420|OwnerLink 421 IsPrimary=True"},
        {"a second owner", core::kOwner, 421, "OwnerLink 421"},
        {"the only owner", core::kOwner, 422, "OwnerLink 422"},
        {"a manager's link", core::kManager, 430, "ManagerLink 430"},
        {"an event", core::kAutoEvent, 920, "AutoEvent 920"},
        {"a content", core::kContent, 520, "Content 520"},
        {"a service contract", core::kSvcContract, 620, "SvcContract 620"},
        {"a loan's charge", core::kMortgageLog, 910, "MortgageLog 910"},
        {"a history item", core::kWorkOrderHistory, 610, "WOItem 610"},
        {"a file's link", core::kFileObject, 670, "FileObject 670"},
        {"a template", core::kDocument, 660, "Doc 660"},
        {"a building with everything under it", core::kBuilding, 100,
         "Appliance 510|Appliance 511|AutoEvent 920 IdBuilding=0|AutoEvent 920 IdLease=0|"
         "AutoEvent 920 IdUnit=0|Building 100|Content 520|Deposit 651|Deposit 652|"
         "FileObject 670|FileObject 671|FileObject 672|Lease 700|Lease 702|ManagerLink 430|"
         "OwnerLink 420|OwnerLink 421|RentLog 710|RentLog 711|RentLog 712|RentLog 715|Room 500|"
         "Room 501|StatusLog 200|SvcContract 620|Tenant 300 Status=Archived|Unit 200|Unit 201"},
        {"a unit of a building with others", core::kUnit, 200,
         "Appliance 510|Appliance 511|AutoEvent 920 IdLease=0|AutoEvent 920 IdUnit=0|"
         "Content 520|Deposit 652|FileObject 670|FileObject 672|Lease 700|RentLog 710|"
         "RentLog 711|RentLog 712|RentLog 715|Room 500|Room 501|StatusLog 200|"
         "Tenant 300 Status=Archived|Unit 200"},
        {"the last unit, and the building with it", core::kUnit, 202,
         "Building 101|Lease 701|OwnerLink 422|RentLog 717|Tenant 301 Status=Archived|Unit 202"},
        {"a unit whose building is lost", core::kUnit, 204, "Unit 204"},
        {"a charge", core::kRentLog, 710, "RentLog 710"},
        {"an analysis", 71, 681, "Analysis 681"},
        {"a note analysis", 73, 682, "DiscNote 682"},
        {"a kind that isn't removed", core::kDeposit, 650, ""},
        {"a record that was deleted", core::kUnit, 12345, ""},
        {"a number of another kind", core::kTenant, 200, ""},
    };
    return cases;
}

class Removal : public tests::Portfolio {};

TEST_F(Removal, TakesAndChangesTheToldRowsAlone) {
    for (const RemovalCase& one : RemovalCases()) {
        SCOPED_TRACE(one.name);
        const platform::UnitOfWork takenBack(core::App().Connection);
        EXPECT_TRUE(DeleteRecord(one.kind, one.id, Confirm::DontAsk, Tell::Nobody));
        EXPECT_EQ(Changes(), support::Split(one.changes));
    }
}

TEST_F(Removal, OfNoRecordTouchesNothing) {
    for (const std::int16_t kind : {core::kAccount, core::kBuilding, core::kUnit, core::kTenant}) {
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
