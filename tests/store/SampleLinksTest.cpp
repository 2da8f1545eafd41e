#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "store/SampleFixture.h"
#include "support/Cases.h"

namespace {

using platform::Date;
using tests::SampleDatabase;

std::string WithCondition(std::string statement, std::string_view condition) {
    if (!condition.empty()) statement += " WHERE " + std::string(condition);
    return statement;
}

TEST(SampleLinks, LeadToRecordsOfTheRightKind) {
    SampleDatabase sample(48, Date(2024, 5, 17));
    support::ForEachCase(
        VESTREL_TEST_DATA "/sample.cases", "links", [&](const support::Case& each) {
            const auto keys = sample.Texts(WithCondition(
                "SELECT " + each["key"] + " FROM " + each["parent"], each["condition"]));
            const std::set<std::string> parents(keys.begin(), keys.end());
            for (const std::string& link :
                 sample.Texts("SELECT " + each["column"] + " FROM " + each["child"])) {
                EXPECT_TRUE(link == "0" || parents.contains(link)) << link;
            }
        });
}

TEST(SampleLinks, OfAKindLeadToThatTable) {
    SampleDatabase sample(48, Date(2024, 5, 17));
    const std::map<std::string, std::string> tables = {{"1", "Account WHERE IdAccount"},
                                                       {"5", "Tenant WHERE IdTenant"},
                                                       {"28", "Building WHERE IdBuilding"}};
    const char* const statements[] = {
        "SELECT dbType, IdRelated FROM Contact",
        "SELECT SubsidyType, SubsidyId FROM Lease WHERE Subs = True",
    };
    for (const char* statement : statements) {
        platform::Recordset rows;
        rows.Open(sample.books, statement);
        EXPECT_GT(rows.RecordCount(), 0);
        for (; !rows.Eof(); rows.MoveNext()) {
            const std::string& table = tables.at(rows[0].AsText());
            EXPECT_EQ(sample.Count(table + " = " + rows[1].AsText()), 1) << statement;
        }
    }
}

TEST(SampleLinks, WorkConcernsTheUnitsOwnRoomsAndAppliances) {
    SampleDatabase sample(48, Date(2024, 5, 17));
    EXPECT_GT(sample.Count("WorkOrder WHERE IdRoom <> 0"), 0);
    EXPECT_EQ(sample.Count("WorkOrder, Room WHERE WorkOrder.IdRoom = Room.IdRoom "
                           "AND WorkOrder.IdUnit <> Room.IdUnit"),
              0);
    EXPECT_EQ(sample.Count("WorkOrder, Appliance WHERE WorkOrder.IdAppliance = "
                           "Appliance.IdAppliance AND WorkOrder.IdUnit <> Appliance.IdUnit"),
              0);
    EXPECT_EQ(sample.Count("SvcContract, Appliance, Unit "
                           "WHERE SvcContract.IdAppliance = Appliance.IdAppliance "
                           "AND Appliance.IdUnit = Unit.IdUnit "
                           "AND SvcContract.IdBuilding <> Unit.IdBuilding"),
              0);
}

TEST(SampleLinks, EachBuildingIsWhollyOwnedWithOnePrimaryOwner) {
    SampleDatabase sample(100, Date(2024, 5, 17));
    int shared = 0;
    for (const std::string& building : sample.Texts("SELECT IdBuilding FROM Building")) {
        platform::Recordset owners;
        owners.Open(sample.books, "SELECT * FROM OwnerLink WHERE IdBuilding = " + building);
        double percent = 0;
        int primary = 0;
        std::set<std::int32_t> accounts;
        for (; !owners.Eof(); owners.MoveNext()) {
            percent += owners["Percent"].AsDouble();
            primary += owners["IsPrimary"].AsBoolean() ? 1 : 0;
            EXPECT_TRUE(accounts.insert(owners["IdAccount"].AsLong()).second);
        }
        EXPECT_DOUBLE_EQ(percent, 100) << building;
        EXPECT_EQ(primary, 1) << building;
        shared += accounts.size() > 1 ? 1 : 0;
    }
    EXPECT_GT(shared, 0);
}

TEST(SampleLinks, LoansAreWhereTheirTermsPutThem) {
    SampleDatabase sample(48, Date(2024, 5, 31));
    platform::Recordset loan;
    loan.Open(sample.books, "SELECT * FROM Mortgage");
    EXPECT_GT(loan.RecordCount(), 5);
    for (; !loan.Eof(); loan.MoveNext()) {
        const double rate = loan["OrigRate"].AsDouble();
        EXPECT_GT(rate, 0.01);
        EXPECT_LE(rate, 0.3);
        EXPECT_EQ(loan["NextDue"].AsText(), "05/01/2022");
        EXPECT_EQ(loan["DateUpdated"].AsText(), "04/30/2022");
        const int period = loan["CurrentPeriod"].AsInteger();
        EXPECT_EQ(DateDiff(platform::Interval::Month, loan["FirstDue"].AsDate(),
                           loan["NextDue"].AsDate()),
                  period - 1);
        // Paying on to the last period leaves nothing, or all of an interest-only loan.
        double balance = loan["CurrentPV"].AsDouble();
        for (int i = 0; i < loan["RemainingT"].AsInteger(); ++i) {
            balance += balance * rate / 12 - loan["OrigPmt"].AsDouble();
        }
        const double left = loan["IntOnly"].AsBoolean() ? loan["OrigPV"].AsDouble() : 0;
        EXPECT_NEAR(balance, left, 0.01);
    }
    EXPECT_EQ(sample.Count("Building, Mortgage WHERE Building.IdBuilding = Mortgage.IdBuilding "
                           "AND Building.Equity >= Building.MktValue"),
              0);
}

} // namespace
