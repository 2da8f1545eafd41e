#include <gtest/gtest.h>

#include "platform/database/Recordset.h"
#include "store/CreateDatabase.h"
#include "store/Tables.h"
#include "support/TemporaryFolder.h"

namespace {

using platform::FieldType;

class Schema : public testing::Test {
  protected:
    Schema() {
        store::CreateDatabase(folder_.Path());
        books_.Open(folder_ / "Vestrel.mdb");
    }

    FieldType TypeOf(std::string_view table, std::string_view field) {
        const platform::dialect::Table* found = books_.Tables().Find(table);
        if (found == nullptr) throw std::runtime_error("no table " + std::string(table));
        const platform::dialect::Column* column = found->Find(field);
        if (column == nullptr) throw std::runtime_error("no field " + std::string(field));
        return column->type;
    }

    support::TemporaryFolder folder_;
    platform::Connection books_;
};

TEST_F(Schema, FieldsReadBackAsTheirKinds) {
    struct Case {
        std::string_view table, field;
        FieldType type;
    };
    const Case cases[] = {
        {"Building", "IdBuilding", FieldType::Long},
        {"Building", "Legal", FieldType::Memo},
        {"Building", "Waterfront", FieldType::Boolean},
        {"Building", "StoryHeight", FieldType::Integer},
        {"Building", "Distance", FieldType::Double},
        {"Building", "PurchDate", FieldType::Text},
        {"Building", "TrashAccount", FieldType::Long},
        {"Building", "TrashAccountNumber", FieldType::Text},
        {"Building", "HOAPayment", FieldType::Currency},
        {"Unit", "Bedrooms", FieldType::Text},
        {"Unit", "SqFt", FieldType::Integer},
        {"Room", "Network", FieldType::Boolean},
        {"Content", "Value", FieldType::Currency},
        {"Appliance", "DeprTerm", FieldType::Integer},
        {"Tenant", "Bankrupcy", FieldType::Boolean},
        {"Tenant", "DOB", FieldType::Text},
        {"Account", "ShowAsIndividual", FieldType::Boolean},
        {"Contact", "dbType", FieldType::Integer},
        {"OwnerLink", "Percent", FieldType::Double},
        {"ManagerLink", "MonthlyFee", FieldType::Double},
        {"ManagerLink", "RepairLimit", FieldType::Currency},
        {"WorkOrder", "Limit", FieldType::Currency},
        {"WorkOrder", "Permission", FieldType::Boolean},
        {"WOItem", "Notes", FieldType::Memo},
        {"SvcContract", "BillTerm", FieldType::Integer},
        {"Lease", "SubsidyType", FieldType::Long},
        {"Lease", "Option", FieldType::Boolean},
        {"Lease", "NoticeDays", FieldType::Integer},
        {"Lease", "LastPaid", FieldType::Currency},
        {"Lease", "Residents", FieldType::Memo},
        {"RentLog", "Class", FieldType::Integer},
        {"Transactions", "DebitType", FieldType::Integer},
        {"Transactions", "CreditExported", FieldType::Boolean},
        {"Transactions", "IdLedger", FieldType::Long},
        {"Mortgage", "OrigPer", FieldType::Double},
        {"Mortgage", "CurrentPV", FieldType::Double},
        {"Mortgage", "EscrowAmount", FieldType::Currency},
        {"Mortgage", "xRate", FieldType::Memo},
        {"MortgageLog", "PayDown", FieldType::Currency},
        {"AutoEvent", "IEN", FieldType::Integer},
        {"AutoEvent", "TriggerID", FieldType::Long},
        {"Mileage", "Selected", FieldType::Boolean},
        {"Mileage", "OEnd", FieldType::Double},
        {"Doc", "selWO", FieldType::Boolean},
        {"FileObject", "IsPic", FieldType::Boolean},
        {"Configuration", "NextId", FieldType::Long},
        {"Configuration", "KeepAlerts", FieldType::Integer},
        {"Configuration", "BreakFee", FieldType::Currency},
        {"Configuration", "NoteScoreTable", FieldType::Text},
        {"Configuration", "CFAVacancyRate", FieldType::Double},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(TypeOf(each.table, each.field), each.type) << each.table << '.' << each.field;
    }
}

TEST_F(Schema, HoldsEveryFieldOnceInOrder) {
    const auto& tables = books_.Tables().Tables();
    ASSERT_EQ(tables.size(), 31U);
    for (const store::TableDefinition& table : store::BooksTables()) {
        const platform::dialect::Table* made = books_.Tables().Find(table.name);
        ASSERT_NE(made, nullptr) << table.name;
        ASSERT_EQ(made->columns.size(), table.fields.size()) << table.name;
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            EXPECT_EQ(made->columns[i].name, table.fields[i].name) << table.name;
        }
    }
}

TEST_F(Schema, LeavesLinksAtZeroAndTheCounterUnset) {
    books_.Execute("INSERT INTO Lease (IdLease) VALUES (7)");
    platform::Recordset lease;
    lease.Open(books_, "SELECT * FROM Lease");
    EXPECT_EQ(lease["IdTenant"].AsLong(), 0);
    EXPECT_FALSE(lease["Option"].AsBoolean());
    EXPECT_TRUE(lease["Rent"].IsNull());
    EXPECT_TRUE(lease["DateUpdated"].IsNull());

    books_.Execute("INSERT INTO Configuration (CompanyName) VALUES ('Us')");
    platform::Recordset settings;
    settings.Open(books_, "SELECT NextId, DefaultRentAccount FROM Configuration");
    EXPECT_TRUE(settings["NextId"].IsNull());
    EXPECT_EQ(settings["DefaultRentAccount"].AsLong(), 0);
}

TEST_F(Schema, TextsThatLookLikeNumbersStayTexts) {
    books_.Execute("INSERT INTO Unit (IdUnit, Unit, Notes, Bedrooms) VALUES (1, '007', '1e3', '')");
    books_.Execute("INSERT INTO Lease (IdLease, DateNextDue) VALUES (1, '01/01/2024')");
    EXPECT_EQ(books_.Scalar("SELECT Unit FROM Unit")->AsText(), "007");
    EXPECT_EQ(books_.Scalar("SELECT Notes FROM Unit")->AsText(), "1e3");
    EXPECT_EQ(books_.Scalar("SELECT Bedrooms FROM Unit")->AsText(), "");
    EXPECT_EQ(books_.Scalar("SELECT DateNextDue FROM Lease")->AsText(), "01/01/2024");
}

TEST_F(Schema, TakesTwoRowsOfOneIdentifier) {
    for (const store::TableDefinition& table : store::BooksTables()) {
        const std::string& key = table.fields.front().name;
        if (table.fields.front().kind != store::FieldKind::Long) continue;
        const std::string insert = "INSERT INTO " + table.name + " (" + key + ") VALUES (5)";
        books_.Execute(insert);
        books_.Execute(insert);
        EXPECT_EQ(books_.Scalar("SELECT Count(*) FROM " + table.name)->AsLong(), 2) << table.name;
    }
}

} // namespace
