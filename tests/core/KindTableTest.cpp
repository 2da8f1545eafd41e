#include "core/KindTable.h"

#include <algorithm>

#include "core/CoreFixture.h"
#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace {

class KindTable : public tests::CoreBooks {};

TEST_F(KindTable, NamesTablesFieldsAndStatementsThatThereAre) {
    platform::Connection& books = core::App().Connection;
    for (const core::KindInfo& info : core::AllKinds()) {
        const auto* const table = info.table.empty() ? nullptr : books.Tables().Find(info.table);
        EXPECT_EQ(table == nullptr, info.table.empty()) << info.table;
        if (!info.key.empty()) {
            ASSERT_NE(table, nullptr) << info.name;
            EXPECT_NE(table->Find(info.key), nullptr) << info.key;
        }
        for (const std::string_view sql : {info.description, info.shortDescription, info.label}) {
            if (sql.empty()) continue;
            const auto places = static_cast<std::size_t>(std::ranges::count(sql, '?'));
            const std::vector<platform::Value> ids(places, platform::Value(7));
            EXPECT_EQ(books.Scalar(sql, ids), std::nullopt) << sql;
        }
        if (!info.list.empty()) {
            EXPECT_NO_THROW(books.Scalar(info.list)) << info.list;
        }
        if (!info.listOfParent.empty()) {
            EXPECT_NO_THROW(books.Scalar(std::string(info.listOfParent) + "7"));
        }
    }
}

TEST_F(KindTable, IsReadByNumber) {
    EXPECT_EQ(core::InfoOf(core::kWorkOrder).plural, "work orders");
    EXPECT_EQ(core::InfoOf(core::kVendorAccount).offers, core::kAccount);
    EXPECT_EQ(core::InfoOf(core::RecordKind{21}).name, "");
    for (const int unknown : {-1, 41, 71, 30'000})
        EXPECT_EQ(core::InfoOf(static_cast<core::RecordKind>(unknown)).list, "") << unknown;
}

} // namespace
