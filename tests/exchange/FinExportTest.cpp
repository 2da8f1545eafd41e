#include "exchange/FinExport.h"

#include "core/CoreFixture.h"
#include "exchange/Stops.h"
#include "platform/database/Recordset.h"
#include "platform/values/Errors.h"

namespace {

using namespace tests;
using namespace exchange;

constexpr std::int32_t kBank = 10;
constexpr std::int32_t kCard = 11;
constexpr std::int32_t kPlumber = 12;

/// Three accounts; a payment, a transfer, rent, a row with the bank on both sides, and one that has
/// nothing but an amount.
class FinExportTest : public CoreBooks {
  protected:
    FinExportTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (10, 'First National Bank')");
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (11, 'Card')");
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (12, 'Pipes, Drains')");
        Add(1, "02/29/2024", kBank, "First National Bank", kPlumber, "Pipes, Drains", "150.5",
            "101", "Repairs", "Sink, kitchen, unit 4");
        Add(2, "3/1/2024", kBank, "First National Bank", kCard, "Card", "20", "", "Deposit", "");
        Add(3, "04/30/2024", 0, "Smith, John", kBank, "First National Bank", "1000", "",
            "Rent Payment", "April");
        Add(4, "05/01/2024", kBank, "First National Bank", kBank, "First National Bank", "0.0001",
            "", "Cleaning and Maintenance", "");
        Run("INSERT INTO Transactions (IdTransaction, CreditID, Amount) VALUES (5, 11, 0)");
    }

    static void Add(int id, const std::string& date, int debit, const std::string& from, int credit,
                    const std::string& to, const std::string& amount, const std::string& check,
                    const std::string& category, const std::string& description) {
        core::App().Connection.Execute(
            "INSERT INTO Transactions (IdTransaction, DateEffective, DebitId, DebitDesc, CreditId, "
            "CreditDesc, Amount, CheckNum, TaxCategory, Description, DebitExported, "
            "CreditExported) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, False, False)",
            {id, date, debit, from, credit, to, amount, check, category, description});
    }

    std::int64_t Export(FinExportRequest request) { return RunFinExport(request, PathTo("out")); }
    std::string Written() const { return ReadText(Folder() / "out"); }

    static std::string Marks() {
        std::string marks;
        platform::Recordset rows;
        for (rows.Open(core::App().Connection,
                       "SELECT DebitExported, CreditExported FROM Transactions");
             !rows.Eof(); rows.MoveNext()) {
            marks += rows[0].AsBoolean() ? 'D' : '-';
            marks += rows[1].AsBoolean() ? 'C' : '-';
        }
        return marks;
    }
};

constexpr ExportRange kNew{};
constexpr ExportRange kAll{TransRange::All, {}, {}};

ExportRange Days(platform::Date from, platform::Date to) {
    return {TransRange::DateRange, from, to};
}

std::string Expected(const std::string& name) {
    return ReadText(VESTREL_TEST_DATA "/expected/" + name);
}

// To renew the expected files after a meant change, copy what the failed test prints.
TEST_F(FinExportTest, WritesEachFormatToTheByte) {
    EXPECT_EQ(Export({.type = FinType::Csv, .range = kAll, .accounts = {kBank, kCard}}), 6);
    EXPECT_EQ(Written(), Expected("export.csv"));
    EXPECT_EQ(Export({.type = FinType::Qif, .range = kAll, .accounts = {kBank}}), 4);
    EXPECT_EQ(Written(), Expected("export.qif"));
    EXPECT_EQ(Export({.type = FinType::Iif,
                      .range = kAll,
                      .limit = LimitLength::Yes,
                      .accounts = {kBank, kPlumber}}),
              5);
    EXPECT_EQ(Written(), Expected("export.iif"));
}

TEST_F(FinExportTest, TakesTheTransactionsOfTheRange) {
    const platform::Date leapDay(2024, 2, 29);
    const struct {
        std::int32_t account;
        ExportRange range;
        int count;
    } cases[] = {
        {kBank, kNew, 4},
        {kPlumber, kNew, 1},
        {99, kNew, 0},
        {kBank, Days(leapDay, leapDay), 1},
        {kBank, Days({2024, 3, 1}, {2024, 4, 30}), 2},
        {kBank, Days({2024, 3, 2}, {2024, 4, 29}), 0},
        // A transaction without a day is of no range.
        {kCard, Days({1900, 1, 1}, {2100, 1, 1}), 1},
        {kCard, kAll, 2},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(CountForExport(each.account, each.range), each.count) << each.account;
        EXPECT_EQ(Export({.range = each.range, .accounts = {each.account}}), each.count);
    }
}

TEST_F(FinExportTest, MarksOnlyTheSideThatWasExported) {
    const FinExportRequest bank{.range = kNew, .mark = MarkExported::No, .accounts = {kBank}};
    EXPECT_EQ(Export(bank), 4);
    EXPECT_EQ(Marks(), "----------") << "nothing is marked unasked";
    FinExportRequest marking = bank;
    marking.mark = MarkExported::Yes;
    EXPECT_EQ(Export(marking), 4);
    EXPECT_EQ(Marks(), "D-D--CDC--");
    EXPECT_EQ(Export(marking), 0);
    EXPECT_EQ(ExportedText(0), "No records found for export.");
    EXPECT_EQ(ExportedText(4), "4 records successfully exported.");
    EXPECT_EQ(CountForExport(kCard, kNew), 2) << "the transfer stays new for its other side";
    // Both sides of a transfer in one export.
    EXPECT_EQ(Export({.range = kAll, .mark = MarkExported::Yes, .accounts = {kBank, kCard}}), 6);
    EXPECT_EQ(Marks(), "D-DC-CDC-C");
}

TEST_F(FinExportTest, RefusesWhatNoFileCanHold) {
    EXPECT_EQ(ObjectionTo({.type = FinType::Qif, .accounts = {kBank, kCard}}).text,
              "Quicken can only export one account at a time, please just check one account.");
    EXPECT_EQ(ObjectionTo({.type = FinType::Iif, .accounts = {}}).text,
              "No accounts selected for export.");
    EXPECT_EQ(ObjectionTo({.type = FinType::Csv, .accounts = {kBank, kCard}}).text, "");
    const FinExportRequest marking{.mark = MarkExported::Yes, .accounts = {kBank}};
    EXPECT_THROW(RunFinExport(marking, PathTo("nowhere/out")), platform::Error);
    EXPECT_THROW(RunFinExport(marking, Folder()), platform::Error);
    EXPECT_EQ(Marks(), "----------");
    EXPECT_FALSE(core::App().Connection.InUnitOfWork());
}

TEST_F(FinExportTest, LeavesNeitherMarksNorHalfAFileOnAFullDisk) {
    for (int i = 0; i < 3000; ++i) {
        Add(100 + i, "05/01/2024", kBank, "First National Bank", 0, std::string(80, 'x'), "1", "",
            "", std::string(80, 'y'));
    }
    Run("DELETE * FROM Transactions WHERE IdTransaction < 100");
    MakeFile("out", "the former one");
    core::App().Connection.Close();
    core::App().Connection.Open(core::App().DbFile);
    // Room for a part of the file; and for the file, but not for the marks in the log.
    for (const std::size_t room : {200'000U, 650'000U}) {
        WithLittleRoom(room, [&] {
            Export({.mark = MarkExported::Yes, .accounts = {kBank}});
            ADD_FAILURE();
        });
        EXPECT_EQ(Written(), "the former one");
        EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE DebitExported = True"), "0");
        EXPECT_EQ(NamesIn(Folder()).find("out."), std::string::npos) << NamesIn(Folder());
    }
}

TEST_F(FinExportTest, SurvivesAStopAtEveryStep) {
    MakeFile("out", "the former one");
    const std::string whole = Expected("export.csv");
    int marked = 0;
    const int steps = StopAtEveryStep(
        Folder(),
        [&] {
            Export({.range = kAll, .mark = MarkExported::Yes, .accounts = {kBank, kCard}});
        },
        [&](bool wasStopped) {
            core::App().Connection.Open(core::App().DbFile);
            const std::string marks = Marks();
            const std::string file = Written();
            core::App().Connection.Close();
            EXPECT_TRUE(file == "the former one" || file == whole);
            // Marks are never there without the file that they speak of.
            if (marks != "----------") {
                ++marked;
                EXPECT_EQ(marks, "D-DC-CDC-C");
                EXPECT_EQ(file, whole);
            }
            if (!wasStopped) {
                EXPECT_GT(marked, 0);
            }
        });
    EXPECT_GT(steps, 8);
}

} // namespace
