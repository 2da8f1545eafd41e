#include "shell/screens/frmPosted.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <sstream>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "shell/screens/KestromFixture.h"
#include "support/Books.h"
#include "support/screens/Gallery.h"

namespace {

using platform::Date;
using platform::DateAdd;
using platform::Interval;
using shell::screens::frmPosted;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// The screen on a sample portfolio that two runs have brought forward by a month each, the second
/// with a lease that couldn't be charged.
class Posted : public tests::KestromTest {
  protected:
    Posted() {
        const Date made(2026, 11, 21);
        constexpr int kUnits = 12;
        core::App().Connection.Close();
        shell::RegisterLogic();
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, made);
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        // Rows that are settled on their day can't be taken back.
        core::Execute("DELETE * FROM LeaseCredit");
        RunTo(DateAdd(Interval::Month, 1, made));
        core::Execute(
            "UPDATE Lease SET DateNextDue = 'soon' WHERE IdLease = (SELECT Max(IdLease) FROM "
            "Lease)");
        RunTo(DateAdd(Interval::Month, 2, made));
    }

    static void RunTo(Date day) {
        platform::SetToday(day);
        shell::RunDigest digest;
        shell::RunAndRecord(digest);
    }
    frmPosted& Form() {
        if (!form_) form_ = support::Show<frmPosted>();
        return *form_;
    }
    core::grid::Grid& Runs() { return support::Find<core::grid::Grid>(Form(), "lvwRuns"); }
    core::grid::Grid& Rows() { return support::Find<core::grid::Grid>(Form(), "lvwPosted"); }
    QPushButton& Button(const char* name) { return support::Find<QPushButton>(Form(), name); }
    /// Selects the first row whose text has these words, and returns its number.
    int Select(std::string_view words) {
        const std::string text = support::GridText(Rows());
        int number = 0;
        for (std::size_t from = text.find('\n') + 1; from < text.size();
             from = text.find('\n', from) + 1) {
            ++number;
            if (text.substr(from, text.find('\n', from) - from).find(words) == std::string::npos)
                continue;
            Rows().SelectId(number);
            return number;
        }
        throw std::runtime_error("no such row in\n" + text);
    }
    /// The line of a row as it shows.
    std::string Line(int number) {
        std::istringstream text(support::GridText(Rows()));
        std::string line;
        for (int i = 0; i <= number; ++i)
            std::getline(text, line);
        return line;
    }

    /// Every row of the books, whatever its place in its table.
    static std::vector<std::string> Books() {
        std::vector<std::string> lines = support::Dump(core::App().Connection);
        std::ranges::sort(lines);
        return lines;
    }

    QPointer<frmPosted> form_;
};

TEST_F(Posted, ShowsWhyEachRowOfARunWasPosted) {
    EXPECT_THAT(support::GridText(Runs()), StartsWith("Run|Days|Rows|Errors\n01/21/2027 "));
    EXPECT_THAT(support::GridText(Rows()), StartsWith("Day|What|Reason|Amount|Record|Taken Back\n"
                                                      " |Not updated|"));
    EXPECT_FALSE(Button("cmdTakeBack").isEnabled()) << "a record that was skipped";
    EXPECT_EQ(support::Text(Form(), "lblReason"),
              "Field DateNextDue: \"soon\" is not a valid date.");
    QTest::keyClick(&Rows(), Qt::Key_Return);
    EXPECT_THAT(log_, ElementsAre(StartsWith("2 "))) << "the lease to be corrected";
    EXPECT_THAT(support::Portray(Form(), "frmPosted"), IsEmpty());

    // The keyboard goes from the runs to the rows of one.
    Runs().setFocus();
    QTest::keyClick(&Runs(), Qt::Key_Down);
    EXPECT_THAT(support::GridText(Rows()), testing::Not(HasSubstr("Not updated")));
    EXPECT_THAT(support::GridText(Rows()), HasSubstr("Rent due 12/01/2026: the lease's rent"));
    QTest::keyClick(&Runs(), Qt::Key_Return);
    EXPECT_TRUE(Rows().hasFocus());
    QTest::keyClick(&Form(), Qt::Key_Escape);
    support::SettleEvents();
    EXPECT_TRUE(form_.isNull());
}

TEST_F(Posted, TakesARowBackAndPostsItAgain) {
    const auto before = Books();
    const int rent = Select("|Rent|");
    const std::string line = Line(rent);
    EXPECT_TRUE(Button("cmdTakeBack").isEnabled());
    EXPECT_FALSE(Button("cmdPostAgain").isEnabled());
    Button("cmdTakeBack").click();
    EXPECT_EQ(Books(), before) << "No is the answer";
    EXPECT_EQ(Line(rent), line);

    Answer({true});
    Button("cmdTakeBack").click();
    const std::vector<std::string> heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_THAT(heard[0],
                testing::MatchesRegex("Confirm Take Back: Take this row back on purpose.\n\n"
                                      "01/01/2027, Rent, [0-9,.]+: .+\n\n"
                                      "It is deleted, and no later run posts it again."));
    EXPECT_EQ(Line(rent), line.substr(0, line.size() - 1) + "01/21/2027");
    EXPECT_EQ(Rows().SelectedId(), rent) << "the selection stays";
    EXPECT_FALSE(Button("cmdTakeBack").isEnabled());
    Button("cmdPostAgain").click();
    EXPECT_EQ(Line(rent), line);
    EXPECT_EQ(Books(), before);

    // Several rows at once: one that another program has changed keeps them all.
    Rows().selectAll();
    core::Execute("UPDATE RentLog SET Amount = Amount + 1 WHERE DatePosted = '01/01/2027'");
    Answer({true});
    Button("cmdTakeBack").click();
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("more\n\nThey are deleted"),
                                     HasSubstr("changed since it was posted")));
    EXPECT_EQ(Ask("SELECT Count(*) FROM TakenBack"), "1") << "the sample's own";
}

TEST_F(Posted, FollowsRunsWhileItIsOpenAndKeepsTheSelection) {
    Runs().SelectId(2);
    const int rent = Select("|Rent|");
    const std::string line = Line(rent);
    const auto expect = [&](int run) {
        EXPECT_EQ(Runs().SelectedId(), run);
        EXPECT_EQ(Rows().SelectedId(), rent);
        EXPECT_EQ(Line(rent), line);
        EXPECT_TRUE(Button("cmdTakeBack").isEnabled());
    };
    RunTo(Date(2027, 3, 1));
    expect(3);
    // Another program doesn't broadcast.
    Form().activateWindow();
    support::SettleEvents();
    shell::RunDigest digest;
    shell::RunRecorder other(shell::HistoryFile(core::App().Connection), digest);
    other.Failed(core::kLease, 7, "Smith", "no date");
    expect(3);
    QEvent activated(QEvent::ActivationChange);
    QApplication::sendEvent(&Form(), &activated);
    expect(4);
    EXPECT_THAT(support::GridText(Runs()), HasSubstr("\n03/01/2027 "));
    Rows().selectAll();
    const auto all = Rows().SelectedIds();
    QApplication::sendEvent(&Form(), &activated);
    EXPECT_EQ(Rows().SelectedIds(), all);

    EXPECT_FALSE(Button("cmdEarlier").isVisible());
    Form().close();
    support::SettleEvents();
    RunTo(Date(2027, 12, 31));
    EXPECT_EQ(Runs().Model().rowCount(), 4) << "of the last twelve months";
    Button("cmdEarlier").click();
    EXPECT_EQ(Runs().Model().rowCount(), 6);
    EXPECT_FALSE(Button("cmdEarlier").isVisible());
}

TEST_F(Posted, SaysThatThereIsNothingToShow) {
    const auto history = shell::HistoryFile(core::App().Connection);
    std::filesystem::remove(history);
    // As in restored books: what was taken back can be posted again without the history.
    EXPECT_THAT(support::GridText(Runs()), HasSubstr("\nTaken back, of earlier runs|"));
    EXPECT_THAT(Line(1), testing::MatchesRegex("[0-9/]+.Late Fee..[0-9.]+.[^|]+.11/21/2026"));
    Button("cmdPostAgain").click();
    EXPECT_THAT(Line(1), testing::EndsWith("| "));
    EXPECT_EQ(Ask("SELECT Count(*) FROM TakenBack"), "0");
    Form().close();
    support::SettleEvents();

    EXPECT_EQ(platform::qt::FromScreen(Runs().EmptyText()), "No run has posted anything yet.");
    EXPECT_EQ(Runs().Model().rowCount(), 0);
    for (const char* const button : {"cmdOpen", "cmdTakeBack", "cmdPostAgain"})
        EXPECT_FALSE(Button(button).isEnabled()) << button;
    EXPECT_THAT(support::Portray(Form(), "frmPosted-empty"), IsEmpty());
    Form().close();
    support::SettleEvents();

    // A run that can't be kept is shown all the same.
    std::filesystem::create_directory(history);
    platform::SetToday(Date(2027, 3, 1));
    shell::RunDigest digest;
    shell::RunAndRecord(digest);
    form_ = support::Show<frmPosted>(digest);
    EXPECT_TRUE(support::Find<QLabel>(Form(), "lblHistoryFault").isVisible());
    EXPECT_THAT(support::GridText(Runs()), HasSubstr("\nSince the program was started|"));
    EXPECT_TRUE(Button("cmdOpen").isEnabled());
}

} // namespace
