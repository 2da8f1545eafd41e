#include "DatabaseFixture.h"
#include "support/Cases.h"

namespace platform {

namespace {

class RecordsetSortTest : public DatabaseFixture {
  protected:
    RecordsetSortTest() {
        const auto insert = [&](std::initializer_list<Value> values) {
            connection_.Execute(
                "INSERT INTO Person (Id, Name, Age, Weight, Balance, Active) "
                "VALUES (?, ?, ?, ?, ?, ?)",
                values);
        };
        insert({1, "Pear tree by the old wall", 9, 2.5, -5, true});
        insert({2, "apple", 10, -1e300, 100.25, false});
        insert({3, "PEAR TREE BY THE HEDGE", -2, Value(), Value(), true});
        insert({4, "", 10, 0.0, 20, Value()});
        insert({5, Value(), Value(), -0.0, 100.3, false});
        insert({6, "Älm", 9, -0.25, 9, true});
        insert({7, "älme", 100, 3, -50, false});
        insert({8, "Apples", 0, 1e10, 0, true});
        rows_.Open(connection_,
                   "SELECT *, DateSerial(2000 + Age, 1, 1) AS Born, Name AS [Name, full], "
                   "Name AS [Desc] FROM Person ORDER BY Id");
    }

    std::string Sorted(std::string_view order) {
        rows_.Sort(order);
        EXPECT_EQ(rows_.AbsolutePosition(), 1);
        return Column(rows_, "Id");
    }

    Recordset rows_;
};

TEST_F(RecordsetSortTest, OrdersEachTypeByItsOwnRuleHoweverTheOrderIsWritten) {
    for (const char* const table :
         {"each type by its own rule", "names in brackets and directions in any case"}) {
        support::ForEachCase(VESTREL_TEST_DATA "/orders.cases", table,
                             [this](const support::Case& each) {
                                 rows_.Sort("");
                                 EXPECT_EQ(Sorted(each["order"]), each["ids"] + " ");
                             });
    }
}

TEST_F(RecordsetSortTest, KeepsThePresentOrderOfEqualRowsAndRestoresTheStatements) {
    EXPECT_EQ(Sorted("Id DESC"), "8 7 6 5 4 3 2 1 ");
    EXPECT_EQ(Sorted("Age"), "5 3 8 6 1 4 2 7 ");
    EXPECT_EQ(Sorted("  "), "1 2 3 4 5 6 7 8 ");
}

TEST_F(RecordsetSortTest, RefusesWhatIsNoOrderAndKeepsTheRowsInPlace) {
    Sorted("Id DESC");
    for (const char* order :
         {"Nonsense", "Id, Nonsense DESC", "Id,", ",", "[Id", "[Id] down", "Id UP", "[]"}) {
        EXPECT_THROW(rows_.Sort(order), FieldError) << order;
    }
    EXPECT_EQ(Column(rows_, "Id"), "8 7 6 5 4 3 2 1 ");
}

TEST_F(RecordsetSortTest, SortsManyRowsByTextsThatBeginAlike) {
    UnitOfWork unit(connection_);
    for (int id = 100; id < 20'100; ++id) {
        AddPerson(id, "transaction " + std::to_string(id * 7'919 % 20'000 + 10'000));
    }
    unit.Commit();
    rows_.Open(connection_, "SELECT Name FROM Person WHERE Id >= 100");
    rows_.Sort("Name");
    std::string last;
    for (int number = 10'000; !rows_.Eof(); rows_.MoveNext(), ++number) {
        ASSERT_EQ(rows_["Name"].AsText(), "transaction " + std::to_string(number));
    }
}

} // namespace

} // namespace platform
