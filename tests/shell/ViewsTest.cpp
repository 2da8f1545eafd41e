#include "shell/Views.h"

#include <gmock/gmock.h>

#include <vector>

#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "platform/database/Recordset.h"
#include "support/Cases.h"

namespace {

using shell::BuildViewSql;
using shell::IdColumn;
using shell::ViewFilter;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class Views : public tests::CoreRecords {
  protected:
    Views() {
        Run("UPDATE Lease SET Status = 'MTM', Hide = False WHERE IdLease = 40");
        Run("INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status, Hide) "
            "VALUES (41, 21, 31, 'Notice', False)");
        Run("INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status, Hide) "
            "VALUES (42, 22, 32, 'MTM', True)");
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType, Hide) "
            "VALUES (63, 'Odd', 'Owner''s friend', False)");
        // Today is 05/17/2024; ninety days back is 02/17/2024.
        AddTransaction(90, "02/16/2024", "Ann", "Bank", 10);
        AddTransaction(91, "02/17/2024", "Ann", "O'Brien", 10);
        AddTransaction(92, "05/17/2024", "Bob", "Bank", 11);
    }

    static void AddTransaction(int id, const std::string& day, const std::string& from,
                               std::string to, int idBuilding) {
        if (const auto quote = to.find('\''); quote != std::string::npos) to.insert(quote, "'");
        Run("INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
            "Amount, IdBuilding) VALUES (" +
            std::to_string(id) + ", '" + day + "', '" + from + "', '" + to + "', 12.5, " +
            std::to_string(idBuilding) + ")");
    }

    static std::vector<std::int32_t> Ids(core::RecordKind kind, const ViewFilter& filter) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, BuildViewSql(kind, filter, IdColumn::First));
        std::vector<std::int32_t> ids;
        for (; !rows.Eof(); rows.MoveNext())
            ids.push_back(rows[std::size_t{0}].AsLong());
        return ids;
    }
};

TEST_F(Views, HaveTheirColumnsWithAndWithoutTheId) {
    support::ForEachCase(
        VESTREL_TEST_DATA "/views.cases", "columns", [](const support::Case& each) {
            for (const IdColumn idColumn : {IdColumn::First, IdColumn::Omitted}) {
                platform::Recordset rows;
                rows.Open(core::App().Connection,
                          BuildViewSql(each.Number<core::RecordKind>("kind"), {}, idColumn));
                std::string names;
                for (std::size_t i = 0; i < rows.FieldCount(); ++i)
                    names += (i == 0 ? "" : ", ") + rows[i].Name();
                const bool hasId = idColumn == IdColumn::First;
                EXPECT_EQ(names, (hasId ? each["id column"] + ", " : "") + each["columns"]);
            }
        });
    EXPECT_EQ(BuildViewSql(core::kAlert, {}, IdColumn::First), "");
    EXPECT_EQ(BuildViewSql(core::kMileage, {}, IdColumn::First), "");
}

TEST_F(Views, KeepToTheChosenWordAndTheRecordsNotHidden) {
    EXPECT_THAT(Ids(core::kLease, {}), UnorderedElementsAre(40, 41));
    EXPECT_THAT(Ids(core::kLease, {.showHidden = true}), UnorderedElementsAre(40, 41, 42));
    EXPECT_THAT(Ids(core::kLease, {.status = "MTM"}), ElementsAre(40));
    EXPECT_THAT(Ids(core::kLease, {.status = "MTM", .showHidden = true}),
                UnorderedElementsAre(40, 42));
    EXPECT_THAT(Ids(core::kLease, {.status = "Broken"}), ElementsAre());
    EXPECT_THAT(Ids(core::kAccount, {.status = "Owner's friend"}), ElementsAre(63));
}

TEST_F(Views, NarrowTransactionsByPeriodAndOneField) {
    struct Case {
        ViewFilter filter;
        std::vector<std::int32_t> ids;
    };
    for (const Case& c : std::vector<Case>{
             {{}, {91, 92}},
             {{.days = 91}, {90, 91, 92}},
             {{.days = 30}, {92}},
             {{.days = 0}, {90, 91, 92}},
             {{.showHidden = true, .days = 30}, {92}},
             {{.days = 0, .field = "To", .item = {"O'Brien", 0}}, {91}},
             {{.days = 0, .field = "From", .item = {"Ann", 0}}, {90, 91}},
             {{.days = 0, .field = "Building", .item = {"Oak Rd", 11}}, {92}},
             {{.days = 0, .field = "Building", .item = {"All", 0}}, {90, 91, 92}},
             {{.days = 0, .field = "None", .item = {"Oak Rd", 11}}, {90, 91, 92}},
         }) {
        EXPECT_EQ(Ids(core::kTransaction, c.filter), c.ids)
            << BuildViewSql(core::kTransaction, c.filter, IdColumn::First);
    }
}

TEST_F(Views, OfferWordsOfTheKindOrOfItsRecords) {
    EXPECT_THAT(shell::ViewWords(core::kUnit), ElementsAre("All", "Hold", "Avaliable", "Leased"));
    EXPECT_THAT(shell::ViewWords(core::kTransaction), ElementsAre("All"));
    EXPECT_THAT(shell::ViewWords(core::kAccount),
                UnorderedElementsAre("All", "Bank", "Building Owner", "Owner's friend"));
}

TEST_F(Views, OfferItemsForEveryFilterField) {
    std::vector<std::string> fields;
    for (const std::string_view field : shell::FilterFields()) {
        const auto items = shell::FilterItems(field);
        ASSERT_FALSE(items.empty());
        EXPECT_EQ(items.front(), (shell::Choice{"All", 0})) << field;
        if (items.size() > 1) fields.emplace_back(field);
    }
    EXPECT_THAT(fields, ElementsAre("To", "From", "Category", "Building", "Unit", "Tenant", "Lease",
                                    "Mortgage"));
    EXPECT_THAT(shell::FilterItems("Building"),
                ElementsAre(shell::Choice{"All", 0}, shell::Choice{"12 Elm St", 10},
                            shell::Choice{"Oak Rd", 11}));
}

} // namespace
