#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/CoreFixture.h"
#include "core/TableCsv.h"
#include "platform/system/Paths.h"
#include "shell/CommandLine.h"
#include "shell/DigestTable.h"
#include "shell/GridReport.h"
#include "shell/RunDigest.h"
#include "shell/ShutDown.h"
#include "shell/SplashTime.h"

namespace {

using testing::ElementsAre;

/// Steps that write down that they ran; the one named by `failing` fails.
struct ShutDownLog {
    std::vector<std::string> ran;
    std::string failing;
    bool isBackupDue = false;

    std::function<void()> Step(const std::string& name) {
        return [this, name] {
            ran.push_back(name);
            if (name == failing) throw std::runtime_error(name);
        };
    }
    std::vector<std::string> Run() {
        shell::ShutDown({.saveWindow = Step("window"),
                         .saveHomePage = Step("home"),
                         .closeSession = Step("session"),
                         .releaseDialogs = Step("dialogs"),
                         .unloadForms = Step("forms"),
                         .isBackupWanted = [this] { return isBackupDue; },
                         .startBackup = Step("backup"),
                         .endProcess = Step("end")});
        return ran;
    }
};

TEST(ShutDown, RunsItsStepsInOrder) {
    EXPECT_THAT(ShutDownLog{}.Run(),
                ElementsAre("window", "home", "session", "dialogs", "forms", "end"));
}

TEST(ShutDown, LeavesTheEndToABackupThatIsWanted) {
    ShutDownLog log;
    log.isBackupDue = true;
    EXPECT_THAT(log.Run(), ElementsAre("window", "home", "session", "dialogs", "forms", "backup"));
}

TEST(ShutDown, GoesOnAfterAStepThatFails) {
    for (const char* const step : {"window", "home", "session", "dialogs", "forms"}) {
        ShutDownLog log;
        log.failing = step;
        EXPECT_THAT(log.Run(), ElementsAre("window", "home", "session", "dialogs", "forms", "end"));
    }
    ShutDownLog log;
    log.failing = "backup";
    log.isBackupDue = true;
    EXPECT_EQ(log.Run().back(), "end");
}

TEST(ShutDown, EndsWithoutTheStepsThatAreMissing) {
    ShutDownLog log;
    shell::ShutDownSteps steps;
    steps.endProcess = log.Step("end");
    shell::ShutDown(steps);
    EXPECT_THAT(log.ran, ElementsAre("end"));
}

TEST(SplashTime, EndsAfterOneSecondBeyondItsRoundedStart) {
    struct Case {
        double start;
        double now;
        bool isOver;
    };
    for (const Case& c : std::vector<Case>{
             {100.4, 101.0, false},
             {100.4, 101.1, true},  // the shortest stay
             {100.6, 102.0, false}, // the longest
             {100.6, 102.1, true},
             {100.6, 100.7, false}, // rounded up, the clock is still before the start
             {86399.9, 0.3, true},  // past midnight the clock never reaches the end
         }) {
        EXPECT_EQ(shell::SplashTime(c.start).IsOver(c.now), c.isOver) << c.start << " " << c.now;
    }
}

TEST(CommandLine, PartsTheOptionsFromTheSwitches) {
    const auto read = [](std::vector<const char*> words) { return shell::ReadCommandLine(words); };
    const auto line = read(
        {"--data", "/home/me/books", "/expert", "--today", "02/29/2024", "/altdb=second", "house"});
    EXPECT_EQ(line.fault, "");
    EXPECT_EQ(line.data, "/home/me/books");
    EXPECT_EQ(line.today, platform::Date(2024, 2, 29));
    EXPECT_EQ(line.rest, "/expert /altdb=second house");
    EXPECT_FALSE(line.readOnly);
    EXPECT_TRUE(read({"--data", "/restored", "--read-only"}).readOnly);
    EXPECT_FALSE(line.welcomes);
    EXPECT_TRUE(read({"/welcome", "--data", "/books"}).welcomes);
    EXPECT_EQ(read({"/welcome", "/expert"}).rest, "/expert");
    EXPECT_EQ(read({}).rest, "");
    EXPECT_EQ(read({"--data"}).fault, "--data needs a value");
    EXPECT_EQ(read({"--today", "02/30/2024"}).fault,
              "'02/30/2024' is not a valid date (mm/dd/yyyy)");
}

class GridReports : public tests::CoreProcess {};

TEST_F(GridReports, ReplaceTheScratchReport) {
    shell::WriteGridReport("SELECT 1");
    const auto file = shell::WriteGridReport("SELECT Rent FROM Unit ");
    EXPECT_EQ(file, PathTo("Reports/SysReport"));
    EXPECT_EQ(platform::ReadWholeFile(file),
              "[GENERAL]\n\n[HEADER]\nTitle=Vestrel Data View\n\n[DATA]\n"
              "SQLQuery=SELECT Rent FROM Unit \nShowTable\n\n[FOOTER]\n\n");
}

TEST(RunDigest, CountsWhatWasPostedSinceTheFirstDay) {
    shell::RunDigest digest;
    EXPECT_EQ(digest.Line(), "");
    EXPECT_EQ(digest.FaultLine(), "");
    const auto amount = platform::Currency::FromUnits(900);
    digest.Posted(core::kLease, 40, "Smith", {{platform::Date(2026, 11, 1), "Rent", amount}});
    EXPECT_EQ(digest.Line(), "Since 11/01/2026: 1 rent charge");
    digest.Posted(core::kLease, 41, "O'Brien",
                  {{platform::Date(2026, 10, 3), "Rent", amount},
                   {platform::Date(2026, 10, 9), "Late Fee", amount},
                   {platform::Date(2026, 10, 9), "Cleaning", amount}});
    EXPECT_EQ(digest.Line(), "Since 10/03/2026: 2 rent charges, 1 late fee, 1 Cleaning");
    EXPECT_EQ(digest.DescriptionOf(digest.Rows().back()), "O'Brien");
    digest.Posted(core::kMortgage, 50, "Loan",
                  {{platform::Date(2026, 11, 1), "Mortgage Payment", amount},
                   {platform::Date(2026, 11, 1), "Mortgage Escrow", amount}});
    EXPECT_THAT(digest.Line(), testing::EndsWith("1 mortgage charge, 1 escrow charge"))
        << "the run charges; it pays nothing";
    digest.Failed(core::kLease, 42, "Zu", "no date");
    EXPECT_EQ(digest.FaultLine(), "1 record could not be brought up to date");
}

TEST(DigestTable, ListsWhatWasSkippedAndThenWhatWasPosted) {
    shell::RunDigest digest;
    std::ostringstream empty;
    core::WriteCsv(shell::DigestTable(digest), empty);
    EXPECT_EQ(empty.str(),
              "\"No.\",\"Day\",\"What\",\"Reason\",\"Amount\",\"Record\",\"Taken Back\"\n");
    const platform::Date day(2026, 10, 3);
    const auto amount = platform::Currency::FromUnits(70);
    digest.Posted(core::kLease, 41, "O'Brien",
                  {{day, "Rent Subsidy ", amount, {core::Posting::Subsidy, day}, 8},
                   {day, "Rent Subsidy ", amount, {core::Posting::Subsidy, day}, 9}});
    digest.Failed(core::kLease, 42, "Zu", "no date");
    digest.Failed(core::kNone, 0, "Leases", "no table");
    const core::TakenRow taken{.recordKind = core::kLease,
                               .recordId = 41,
                               .posting = core::Posting::Subsidy,
                               .date = day,
                               .rowId = 9,
                               .takenOn = platform::Date(2026, 10, 5)};
    const shell::DigestTable table(
        digest, std::make_shared<const shell::TakenRows>(shell::TakenRows{{taken.rowId, taken}}));
    std::ostringstream text;
    core::WriteCsv(table, text);
    EXPECT_EQ(text.str(), empty.str() +
                              "1,,\"Not updated\",\"no date\",,\"Zu\",\n"
                              "2,,\"Not updated\",\"no table\",,\"Leases\",\n"
                              "3,10/03/2026,\"Rent Subsidy\",\"Rent due 10/03/2026: the lease's "
                              "subsidy\",70.0000,\"O'Brien\",\n"
                              "4,10/03/2026,\"Rent Subsidy\",\"Rent due 10/03/2026: the lease's "
                              "subsidy\",70.0000,\"O'Brien\",10/05/2026\n");
    ASSERT_NE(table.PostedRow(3), nullptr);
    EXPECT_EQ(table.PostedRow(3)->recordId, 41);
    EXPECT_EQ(table.RecordOf(1), (shell::RecordPlace{core::kLease, 42}));
    EXPECT_EQ(table.RecordOf(2), std::nullopt) << "a whole step of the run";
    EXPECT_EQ(table.RecordOf(4), (shell::RecordPlace{core::kLease, 41}));
    for (const int outside : {0, -1, 1, 2, 5})
        EXPECT_EQ(table.PostedRow(outside), nullptr) << outside;
}

} // namespace
