#include <gtest/gtest.h>

#include <utility>

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

    support::TemporaryFolder folder_;
    platform::Connection books_;
};

/// The type that a field of this kind reads back as, and a value at the edge of what it holds.
std::pair<FieldType, platform::Value> ExampleOf(store::FieldKind kind) {
    switch (kind) {
        case store::FieldKind::Long:
        case store::FieldKind::Counter:
            return {FieldType::Long, std::int32_t{-2'147'483'647}};
        case store::FieldKind::Integer:
            return {FieldType::Integer, std::int16_t{-32'768}};
        case store::FieldKind::Double:
            return {FieldType::Double, 0.1 + 0.2};
        case store::FieldKind::Currency:
            return {FieldType::Currency, platform::Currency::FromScaled(-92'233'720'368'547'758)};
        case store::FieldKind::Boolean:
            return {FieldType::Boolean, true};
        case store::FieldKind::Memo:
            return {FieldType::Memo, "007\n" + std::string(70'000, 'x')};
        case store::FieldKind::Text:
            return {FieldType::Text, "1e3 O'Brien"};
        case store::FieldKind::DateText:
            return {FieldType::Text, "02/29/2024"};
    }
    throw std::logic_error("a kind of field without an example");
}

TEST_F(Schema, HoldsEveryFieldOnceInOrderAndGivesBackWhatItWasGiven) {
    ASSERT_EQ(store::BooksTables().size(), 31U);
    ASSERT_EQ(books_.Tables().Tables().size(), 35U);
    for (const store::TableDefinition& table : store::BooksTables()) {
        SCOPED_TRACE(table.name);
        const auto count = [&] {
            return books_.Scalar("SELECT Count(*) AS RecordCount FROM " + table.name)->AsLong();
        };
        const std::int32_t before = count();
        platform::Recordset rows;
        rows.Open(books_, table.name, platform::CursorMode::AppendOnly);
        ASSERT_EQ(rows.FieldCount(), table.fields.size());
        rows.AddNew();
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            EXPECT_EQ(rows[i].Name(), table.fields[i].name);
            EXPECT_EQ(rows[i].Type(), ExampleOf(table.fields[i].kind).first)
                << table.fields[i].name;
            rows[i].Set(ExampleOf(table.fields[i].kind).second);
        }
        rows.Update();
        EXPECT_EQ(count(), before + 1);

        rows.Open(books_, "SELECT * FROM " + table.name);
        rows.SetAbsolutePosition(before + 1);
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            EXPECT_EQ(rows[i].Value(), ExampleOf(table.fields[i].kind).second)
                << table.fields[i].name;
        }
        EXPECT_EQ(books_.Execute("DELETE * FROM " + table.name), before + 1);
        EXPECT_EQ(count(), 0);
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
