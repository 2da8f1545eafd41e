#include <gmock/gmock.h>

#include <QSplitter>

#include "alerts/screens/Alerts.h"
#include "core/EditRecord.h"
#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "support/screens/Screens.h"

namespace {

using platform::qt::FromScreen;
using support::Find;
using testing::ElementsAre;
using testing::IsEmpty;

class AlertsPage : public support::ScreenTest {
  public:
    ~AlertsPage() override {
        for (const core::RecordKind kind : {core::kLease, core::kMortgage, core::kBuilding})
            core::RegisterOpener(kind, nullptr);
    }

  protected:
    AlertsPage() {
        platform::SetToday(platform::Date(2024, 5, 17));
        core::App().DbPath = PathTo("");
        for (const core::RecordKind kind : {core::kLease, core::kMortgage, core::kBuilding}) {
            core::RegisterOpener(kind, [this](const core::EditRequest& request) {
                opened_.push_back(std::to_string(core::KindNumber(request.kind)) + " " +
                                  std::to_string(request.id));
            });
        }
    }

    void Show() {
        page_.resize(900, 560);
        page_.show();
        page_.Refresh();
        support::SettleEvents();
    }
    QListWidget& List() { return Find<QListWidget>(page_, "lvwAlerts"); }
    std::string Count() { return FromScreen(Find<QLabel>(page_, "lblAlerts").text()); }
    QPlainTextEdit& Notes() { return Find<QPlainTextEdit>(page_, "mtxtNotes"); }
    void DoubleClick(int row) {
        const QPoint middle = List().visualItemRect(List().item(row)).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, middle);
    }
    static void AddCauses() {
        Run("UPDATE Lease SET RentStatus = 'Late' WHERE IdLease = 40");
        Run("UPDATE Mortgage SET PmtStatus = 'Due' WHERE IdMortgage = 50");
        Run("UPDATE Building SET InsNextDue = '05/20/2024' WHERE IdBuilding = 11");
        Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('05/17/2024', 'Call Ann')");
    }

    std::vector<std::string> opened_;
    alerts::screens::Alerts page_;
};

TEST_F(AlertsPage, ListsWhatNeedsAttentionAndOpensIt) {
    AddCauses();
    Show();
    EXPECT_EQ(Count(), "(4) Active Alerts");
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_EQ(FromScreen(List().item(0)->text()),
              "Rent Notice: Late for Lease Smith at 12 Elm St unit B");
    for (int row = 0; row < List().count(); ++row)
        EXPECT_FALSE(List().item(row)->icon().isNull()) << row;
    for (int row = 0; row < List().count(); ++row)
        DoubleClick(row);
    EXPECT_THAT(opened_, ElementsAre("2 40", "3 50", "28 11")) << "the message has no record";
    opened_.clear();
    List().setFocus();
    List().setCurrentRow(1);
    QTest::keyClick(&List(), Qt::Key_Return);
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Enter);
    EXPECT_THAT(opened_, ElementsAre("3 50", "28 11"));

    Run("UPDATE Lease SET RentStatus = 'Paid' WHERE IdLease = 40");
    page_.Refresh();
    EXPECT_EQ(Count(), "(3) Active Alerts");
    DoubleClick(0);
    EXPECT_EQ(opened_.back(), "3 50") << "rows open what they show, not what stood there before";
}

TEST_F(AlertsPage, CountsTheLineThatSaysThereIsNone) {
    Show();
    EXPECT_EQ(Count(), "(1) Active Alerts");
    EXPECT_EQ(FromScreen(List().item(0)->text()), "No Active Alerts.");
    EXPECT_FALSE(List().item(0)->icon().isNull());
    DoubleClick(0);
    EXPECT_THAT(opened_, IsEmpty());
}

TEST_F(AlertsPage, SumsUpUnderBoldHeadings) {
    Run("INSERT INTO Transactions (IdTransaction, DateEffective, Amount, IEN) "
        "VALUES (90, '05/01/2024', 1234.5, 0)");
    Run("INSERT INTO Transactions (IdTransaction, DateEffective, Amount, IEN) "
        "VALUES (91, '04/30/2024', 0.5, 0)");
    Show();
    const auto& info = Find<QTreeWidget>(page_, "lvwInfo");
    EXPECT_EQ(FromScreen(info.headerItem()->text(0) + info.headerItem()->text(1)), "ItemData");
    std::string text;
    for (int row = 0; row < info.topLevelItemCount(); ++row) {
        const QTreeWidgetItem& line = *info.topLevelItem(row);
        text += line.font(0).bold() ? "*" : "";
        text += FromScreen(line.text(0)) + "|" + FromScreen(line.text(1)) + "\n";
    }
    EXPECT_EQ(text,
              "*Financial Information|\n"
              "Income - Month to Date|1,234.50\n"
              "Income - Year to Date|1,235.00\n"
              "Expenses - Month to Date|0.00\n"
              "Expenses - Year to Date|0.00\n"
              "|\n"
              "*Lease Information|\n"
              "Total Rent Due|0.00\n"
              "Total Rent Subsidy Due|0.00\n"
              "Lease Option Credits|0.00\n"
              "Total Deposits Held|0.00\n"
              "|\n"
              "*Mortgage Information|\n"
              "Total Mortgage Balances|120,000.25\n"
              "Mortgage Payments Due|0.00\n"
              "|\n"
              "*Building Information|\n"
              "Total Market Value|200,000.00\n"
              "Total Equity|0.00\n");
}

TEST_F(AlertsPage, KeepsTheNotes) {
    const std::string file = PathTo("Notes.txt");
    Show();
    EXPECT_EQ(page_.NotesText(), "") << "the hint is no text";
    EXPECT_EQ(FromScreen(Notes().placeholderText()), "Type here to enter notes or reminders.");
    support::Type(Notes(), "Ring O'Brien");
    page_.Refresh();
    EXPECT_EQ(page_.NotesText(), "Ring O'Brien") << "what isn't written yet stays";
    page_.SaveNotes();
    EXPECT_EQ(platform::ReadWholeFile(file), "Ring O'Brien");
    platform::WriteFileAtomically(file, "From elsewhere\nTwo");
    page_.Refresh();
    EXPECT_EQ(page_.NotesText(), "From elsewhere\nTwo");
}

TEST_F(AlertsPage, SavesTheNotesByItselfLetterByLetter) {
    const std::string file = PathTo("Notes.txt");
    Show();
    Notes().insertPlainText(QStringLiteral("12\u00a0Elm\n  two\n\n"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return platform::FileExists(file); }));
    EXPECT_EQ(platform::ReadWholeFile(file),
              "12\xC2\xA0"
              "Elm\n  two\n\n");
}

TEST_F(AlertsPage, SaysThatTheNotesCannotBeSavedAndTriesAgain) {
    std::vector<std::string> told;
    QObject::connect(&page_, &alerts::screens::Alerts::NotesFault,
                     [&](const QString& reason) { told.push_back(FromScreen(reason)); });
    Show();
    core::App().DbPath = PathTo("gone/");
    support::Type(Notes(), "Ring Ann");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(testing::HasSubstr("Notes.txt")));
    page_.Refresh();
    EXPECT_EQ(page_.NotesText(), "Ring Ann") << "nothing is lost";
    EXPECT_THROW(page_.SaveNotes(), platform::Error);
    std::filesystem::create_directory(PathTo("gone"));
    page_.SaveNotes();
    EXPECT_EQ(told.back(), "");
    EXPECT_EQ(platform::ReadWholeFile(PathTo("gone/Notes.txt")), "Ring Ann");
}

TEST_F(AlertsPage, ReadsTheNotesThoughADateIsNone) {
    platform::WriteFileAtomically(PathTo("Notes.txt"), "Keep me");
    Run("UPDATE Building SET HOANextDue = 'soon' WHERE IdBuilding = 11");
    EXPECT_THROW(page_.Refresh(), platform::Error);
    EXPECT_EQ(page_.NotesText(), "Keep me");
    EXPECT_EQ(Count(), "Alerts are not available");
    EXPECT_THAT(FromScreen(List().item(0)->text()), testing::HasSubstr("Building Oak Rd: "));
    page_.Refresh(); // the same again is not thrown again
    Run("UPDATE Building SET HOANextDue = '' WHERE IdBuilding = 11");
    page_.Refresh();
    EXPECT_EQ(Count(), "(1) Active Alerts");
    Run("UPDATE Building SET HOANextDue = 'soon' WHERE IdBuilding = 11");
    EXPECT_THROW(page_.Refresh(), platform::Error);
}

TEST_F(AlertsPage, MarksASumThatCannotBeMade) {
    Run("INSERT INTO Transactions (IdTransaction, DateEffective, Amount, IEN) "
        "VALUES (90, 'soon', 1, 0)");
    Show();
    const auto& info = Find<QTreeWidget>(page_, "lvwInfo");
    const QTreeWidgetItem& income = *info.topLevelItem(1);
    EXPECT_EQ(FromScreen(income.text(1)), "not available");
    EXPECT_THAT(FromScreen(income.toolTip(1)), testing::HasSubstr("soon"));
    EXPECT_FALSE(income.icon(1).isNull());
    EXPECT_EQ(FromScreen(info.topLevelItem(3)->text(1)), "0.00");
}

TEST_F(AlertsPage, OffersTheWizardsThatThereAre) {
    QAction wizard;
    int runs = 0;
    QObject::connect(&wizard, &QAction::triggered, [&] { ++runs; });
    wizard.setEnabled(false);
    page_.BindItem(QStringLiteral("WIZ_LEASE"), wizard);
    Show();
    auto& item = Find<QToolButton>(page_, "WIZ_LEASE");
    EXPECT_EQ(FromScreen(item.text()), "New Lease Wizard");
    EXPECT_FALSE(item.isEnabled());
    wizard.setEnabled(true);
    item.click();
    EXPECT_EQ(runs, 1);
}

TEST_F(AlertsPage, FoldsItsGroupsAndStacksItsPartsWhereItIsNarrow) {
    Show();
    for (QToolButton* const button : page_.findChildren<QToolButton*>()) {
        if (button->isCheckable()) QTest::keyClick(button, Qt::Key_Space);
    }
    EXPECT_FALSE(Notes().isVisible());
    EXPECT_FALSE(Find<QToolButton>(page_, "WIZ_LEASE").isVisible());
    EXPECT_EQ(page_.findChild<QSplitter*>()->orientation(), Qt::Horizontal);
    page_.resize(400, 500);
    EXPECT_EQ(page_.findChild<QSplitter*>()->orientation(), Qt::Vertical);
}

TEST_F(AlertsPage, LooksAndReadsRight) {
    AddCauses();
    Show();
    EXPECT_THAT(support::LookFaults(page_, "Alerts"), IsEmpty());
    page_.resize(420, 620);
    EXPECT_THAT(support::Portray(page_, "Alerts-narrow"), IsEmpty());
}

} // namespace
