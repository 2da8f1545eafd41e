#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "store/SampleFixture.h"
#include "store/Tables.h"
#include "support/Books.h"
#include "support/Cases.h"
#include "support/Words.h"

namespace {

using platform::Date;
using testing::IsSupersetOf;
using tests::SampleDatabase;

const Date kToday(2024, 5, 17);

TEST(SamplePortfolio, IsTheSameInEveryRun) {
    SampleDatabase one(30, kToday);
    SampleDatabase other(30, kToday);
    SampleDatabase dayLater(30, Date(2024, 5, 18));
    const std::vector<std::string> rows = support::Dump(one.books);
    EXPECT_EQ(rows, support::Dump(other.books));
    EXPECT_NE(rows, support::Dump(dayLater.books));
    ASSERT_EQ(one.cast.leases.size(), other.cast.leases.size());
    for (std::size_t i = 0; i < one.cast.leases.size(); ++i) {
        EXPECT_EQ(one.cast.leases[i].idLease, other.cast.leases[i].idLease);
        EXPECT_EQ(one.cast.leases[i].created, other.cast.leases[i].created);
    }
}

TEST(SamplePortfolio, HasAsManyUnitsAsAsked) {
    for (const int units : {1, 2, 3, 24, 25, 100, 1000}) {
        SampleDatabase sample(units, kToday);
        EXPECT_EQ(sample.Count("Unit"), units);
        EXPECT_EQ(sample.Count("Lease"), static_cast<int>(sample.cast.leases.size())) << units;
        EXPECT_GE(sample.Count("Lease"), units * 9 / 10) << units;
        const std::int32_t several = sample.Count("Building WHERE Multi = True");
        EXPECT_EQ(several > 0, units > 3) << units;
        EXPECT_LT(sample.Count("Building"), units + 1) << units;
    }
}

TEST(SamplePortfolio, ShowsEveryKindOfRecord) {
    SampleDatabase sample(store::kSampleUnits, kToday);
    const char* const cases = VESTREL_TEST_DATA "/sample.cases";
    support::ForEachCase(cases, "words", [&](const support::Case& each) {
        EXPECT_THAT(sample.Texts("SELECT DISTINCT " + each["column"]),
                    IsSupersetOf(support::Split(each["words"])));
    });
    support::ForEachCase(cases, "some", [&](const support::Case& each) {
        EXPECT_GT(sample.Count(each["rows"]), 0);
    });
    EXPECT_EQ(sample.Count("AutoEvent WHERE Enabled = True"), 0);
    EXPECT_EQ(sample.Count("RentLog") + sample.Count("Transactions"), 0);
}

TEST(SamplePortfolio, LeasesBeginWithNothingCharged) {
    SampleDatabase sample(48, kToday);
    platform::Recordset lease;
    lease.Open(sample.books, "SELECT * FROM Lease");
    for (; !lease.Eof(); lease.MoveNext()) {
        const std::string begins = lease["DateActive"].AsText();
        EXPECT_EQ(lease["DateRenewed"].AsText(), begins);
        EXPECT_EQ(lease["DateNextDue"].AsText(), begins);
        EXPECT_EQ(lease["DateUpdated"].AsText(), "");
        EXPECT_GT(lease["Rent"].AsCurrency(), platform::Currency());
        EXPECT_TRUE(lease["RentDue"].AsCurrency().IsZero());
        EXPECT_TRUE(lease["DepositTotal"].AsCurrency().IsZero());
        EXPECT_NE(lease["RentAccount"].AsLong(), lease["DepositAccount"].AsLong());
    }
}

TEST(SamplePortfolio, NamesItsAccountsInTheSettings) {
    SampleDatabase sample(3, kToday);
    platform::Recordset settings;
    settings.Open(sample.books, "SELECT * FROM Configuration");
    ASSERT_EQ(settings.RecordCount(), 1);
    EXPECT_NE(settings["CompanyName"].AsText(), "Mine");
    for (const char* field : {"DefaultRentAccount", "DefaultDepositAccount",
                              "DefaultMortgageAccount", "DefaultMortgagee"}) {
        EXPECT_EQ(sample.Count("Account WHERE IdAccount = " + settings[field].AsText()), 1)
            << field;
    }
}

class SampleOnDay : public testing::TestWithParam<Date> {};

TEST_P(SampleOnDay, HabitsFitTheirLeases) {
    const Date today = GetParam();
    SampleDatabase sample(72, today);
    EXPECT_LT(sample.cast.begins, DateAdd(platform::Interval::Month, -23, today));
    EXPECT_GT(sample.cast.begins, DateAdd(platform::Interval::Month, -27, today));
    std::set<std::int32_t> seen;
    std::set<store::PayHabit> habits;
    int notices = 0;
    int broken = 0;
    for (const store::SampleHabit& each : sample.cast.leases) {
        EXPECT_TRUE(seen.insert(each.idLease).second);
        habits.insert(each.habit);
        platform::Recordset lease;
        lease.Open(sample.books, "SELECT * FROM Lease WHERE IdLease = ?",
                   platform::CursorMode::ReadOnly, {each.idLease});
        const Date begins = lease["DateActive"].AsDate();
        EXPECT_EQ(lease["DateCreated"].AsDate(), each.created);
        EXPECT_LT(each.created, begins);
        EXPECT_LT(each.created, today);
        EXPECT_GE(each.created, sample.cast.begins);
        EXPECT_EQ(each.stopsPaying.IsSet(), each.habit == store::PayHabit::StoppedPaying);
        for (const Date turn : {each.givesNotice, each.breaks, each.stopsPaying}) {
            if (!turn.IsSet()) continue;
            EXPECT_GT(turn, begins);
            EXPECT_LE(turn, today);
        }
        notices += each.givesNotice.IsSet() ? 1 : 0;
        broken += each.breaks.IsSet() ? 1 : 0;
    }
    EXPECT_EQ(habits.size(), 5U);
    EXPECT_GT(notices, 0);
    EXPECT_GT(broken, 0);
    EXPECT_GT(sample.Count("Lease WHERE DateValue(DateActive) > #" + today.ToText() + "#"), 0);
}

TEST_P(SampleOnDay, SomethingComesDueSoon) {
    const Date today = GetParam();
    SampleDatabase sample(store::kSampleUnits, today);
    const auto dueWithin = [&](const char* field, int days) {
        const Date last = DateAdd(platform::Interval::Day, days, today);
        const std::string day = "DateValue(" + std::string(field) + ")";
        return sample.Count("Building WHERE " + std::string(field) + " <> '' AND " + day + " > #" +
                            today.ToText() + "# AND " + day + " <= #" + last.ToText() + "#");
    };
    EXPECT_GT(dueWithin("InsNextDue", 30), 0);
    EXPECT_LT(dueWithin("InsNextDue", 30), sample.Count("Building"));
    EXPECT_GT(dueWithin("HOANextDue", 15), 0);
}

TEST_P(SampleOnDay, DaysAreDaysAndNothingIsNull) {
    SampleDatabase sample(48, GetParam());
    for (const store::TableDefinition& table : store::BooksTables()) {
        if (table.name == "Configuration") continue;
        platform::Recordset rows;
        rows.Open(sample.books, "SELECT * FROM " + table.name);
        for (; !rows.Eof(); rows.MoveNext()) {
            for (const store::FieldDefinition& field : table.fields) {
                const platform::Value value = rows[field.name].Value();
                if (field.name == "Initial") continue;
                ASSERT_FALSE(value.IsNull()) << table.name << '.' << field.name;
                if (field.kind != store::FieldKind::DateText || value.IsBlank()) continue;
                const auto day = Date::TryParse(value.AsText());
                ASSERT_TRUE(day) << table.name << '.' << field.name << ' ' << value.AsText();
                ASSERT_EQ(day->ToText(), value.AsText());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Days, SampleOnDay,
                         testing::Values(Date(2024, 2, 29), Date(2024, 3, 1), Date(2023, 12, 31),
                                         Date(2025, 1, 1), Date(2026, 10, 30)));

} // namespace
