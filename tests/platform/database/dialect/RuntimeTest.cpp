#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

#include "platform/database/dialect/LikePattern.h"
#include "platform/database/dialect/RuntimeFunctions.h"
#include "platform/values/Date.h"
#include "support/Cases.h"

namespace platform::dialect {
namespace {

TEST(LikePattern, KnowsBothFamiliesOfWildcards) {
    support::ForEachCase(
        VESTREL_TEST_DATA "/like.cases", "patterns", [](const support::Case& each) {
            EXPECT_EQ(MatchesPattern(each["text"], each["pattern"]), each.IsYes("matches"));
        });
}

// The short way over the stored form gives the same days as the calendar.
TEST(RuntimeDates, StoredDaysReadAsTheCalendarReadsThem) {
    sqlite3* connection = nullptr;
    sqlite3_open(":memory:", &connection);
    RegisterRuntimeFunctions(connection);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, "SELECT vestrel_date(?1)", -1, &statement, nullptr);
    const auto read = [&](const std::string& text) {
        sqlite3_reset(statement);
        sqlite3_bind_text(statement, 1, text.c_str(), -1, SQLITE_TRANSIENT);
        return sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_text(statement, 0) : nullptr;
    };
    const int last = Date(9999, 12, 31).Serial();
    for (int serial = Date(100, 1, 1).Serial(); serial <= last; serial += 1) {
        const bool dense = serial > 36'000 && serial < 51'000;
        if (!dense && serial % 17 != 0) continue;
        const auto* found = read(Date::FromSerial(serial).ToText());
        ASSERT_NE(found, nullptr) << serial;
        ASSERT_EQ(reinterpret_cast<const char*>(found), std::to_string(serial));
    }
    for (const char* text : {"02/30/2024", "00/10/2024", "13/10/2024", "01/00/2024", "01/10/0099",
                             "0a/10/2024", "01/10/20 4", "01-10/2024"}) {
        EXPECT_EQ(read(text), nullptr) << text;
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
}

} // namespace
} // namespace platform::dialect
