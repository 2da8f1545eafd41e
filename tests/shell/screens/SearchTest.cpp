#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "search/screens/ResultList.h"
#include "search/screens/frmSearch.h"
#include "shell/screens/KestromFixture.h"
#include "shell/screens/SearchItems.h"
#include "shell/screens/frmConfig.h"
#include "shell/screens/frmPreferences.h"

namespace {

using platform::qt::FromScreen;
using search::screens::frmSearch;
using search::screens::ResultList;
using support::Find;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class SearchEverything : public tests::KestromTest {
  protected:
    SearchEverything() {
        for (const auto* sql :
             {"UPDATE Transactions SET CheckNum = '4711' WHERE IdTransaction = 90",
              "UPDATE Tenant SET Notes = 'Plays the oboe' WHERE IdTenant = 31",
              "INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (23, 11, 'Penthouse')",
              "INSERT INTO TransCategory (Category, IEN) VALUES ('Moat Upkeep', 1)"})
            Run(sql);
        std::filesystem::create_directories(core::App().ReportPath);
        MakeFile("Reports/Herons.rpt", "[GENERAL]\nDESCRIPTION=Herons seen\n");
        reports::LoadReportList();
        reports::SetReportViewer([this](int index) {
            log_.push_back("report " + reports::FindReport(index)->Description);
        });
        core::RegisterOpener(core::kBuilding, [this](const core::EditRequest& request) {
            log_.push_back("28 " + std::to_string(request.id));
        });
        core::RegisterTransactionOpener(
            core::TransactionEditor::Transaction,
            [this](const core::EditRequest& request, const core::TransactionPlace&) {
                log_.push_back("10 " + std::to_string(request.id));
            });
        services_.commands.Add(QStringLiteral("mnuTransCategory"),
                               [this](const auto&) { log_.emplace_back("categories"); });
        services_.commands.Add(QStringLiteral("mnuPreferences"),
                               [](const auto&) { (new shell::screens::frmPreferences)->Setup(); });
        services_.commands.Add(QStringLiteral("mnuGlobalConfig"),
                               [](const auto&) { (new shell::screens::frmConfig)->Setup(); });
        services_.commands.Add(QStringLiteral("mnuPayRent"), [this](const auto& selection) {
            log_.push_back("pay " + std::to_string(selection.id));
        });
    }

    ~SearchEverything() override {
        reports::SetReportViewer({});
        core::RegisterOpener(core::kBuilding, {});
        core::RegisterTransactionOpener(core::TransactionEditor::Transaction, {});
    }

    template <class Screen>
    static Screen* Open() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const screen = qobject_cast<Screen*>(window);
            if (screen != nullptr && screen->isVisible()) return screen;
        }
        return nullptr;
    }
    /// Opens the box, types, and presses Enter. The title of what was chosen.
    std::string SearchAndOpen(std::string_view text) {
        Item("mnuSearch").trigger();
        auto* const box = Open<frmSearch>();
        if (box == nullptr) return "no box";
        auto& line = Find<QLineEdit>(*box, "txtSearch");
        support::Type(line, text);
        for (int turn = 0; turn < 100; ++turn)
            support::SettleEvents();
        const QTreeWidgetItem* const row = Find<ResultList>(*box, "lvw").currentItem();
        const std::string chosen = row == nullptr ? "nothing" : FromScreen(row->text(0));
        QTest::keyClick(&line, Qt::Key_Return);
        support::SettleEvents();
        EXPECT_EQ(Open<frmSearch>(), nullptr) << text;
        return chosen;
    }
};

TEST_F(SearchEverything, OpensWhatIsFoundOfEachSort) {
    Window();
    const struct {
        const char* text;
        const char* title;
        const char* opened;
    } cases[] = {
        {"smith john", "Smith, John Q", "5 30"},    {"elm salem", "12 Elm St, Salem OR", "28 10"},
        {"penthouse", "Oak Rd Penthouse", "29 23"}, {"4711", "Ann to River Bank", "10 90"},
        {"12.50", "Ann to River Bank", "10 90"},    {"oboe", "O'Brien, Ann", "5 31"},
        {"moat", "Moat Upkeep", "categories"},      {"herons", "Herons seen", "report Herons seen"},
    };
    for (const auto& each : cases) {
        log_.clear();
        EXPECT_EQ(SearchAndOpen(each.text), each.title) << each.text;
        EXPECT_THAT(log_, ElementsAre(each.opened)) << each.text;
    }
}

TEST_F(SearchEverything, OpensCommandsAndSettings) {
    Go("LEASES");
    EXPECT_EQ(SearchAndOpen("pay rent"), "Pay Rent");
    EXPECT_THAT(log_, Contains("pay " + std::to_string(Window().SelectedId())));

    EXPECT_EQ(SearchAndOpen("late rent"), "Late Rent");
    auto* const preferences = Open<shell::screens::frmPreferences>();
    ASSERT_NE(preferences, nullptr);
    EXPECT_EQ(preferences->focusWidget(), &Find<QCheckBox>(*preferences, "chkLateRent"));

    EXPECT_EQ(SearchAndOpen("default vehicle"), "Default Vehicle");
    auto* const configuration = Open<shell::screens::frmConfig>();
    ASSERT_NE(configuration, nullptr);
    const QWidget* const focus = configuration->focusWidget();
    EXPECT_EQ(FromScreen(focus->objectName()), "cboDefaultCar");
    EXPECT_TRUE(focus->isVisible()) << "its page is shown";
}

TEST_F(SearchEverything, SaysWhyACommandCannotRun) {
    Window();
    EXPECT_EQ(SearchAndOpen("add new"), "Add New");
    ASSERT_EQ(Heard().size(), 1U);
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(SearchEverything, OpensByItsKeyAlsoFromABoxThatIsTypedIn) {
    Go("LEASES");
    auto& line = Find<QLineEdit>(Window(), "txtSearch");
    line.setText(QStringLiteral("elm street"));
    line.setFocus();
    line.setCursorPosition(3);
    QTest::keyClick(&line, Qt::Key_K, Qt::ControlModifier);
    support::SettleEvents();
    EXPECT_NE(Open<frmSearch>(), nullptr);
    EXPECT_EQ(FromScreen(line.text()), "elm street") << "nothing is deleted";
    const auto* const first = Open<frmSearch>();
    Item("mnuSearch").trigger();
    EXPECT_EQ(Open<frmSearch>(), first) << "there is one box";
}

TEST_F(SearchEverything, LeavesNoSettingAndNoCommandOut) {
    std::vector<shell::screens::SearchItem> items;
    shell::screens::AddSettings(Window(), items);
    shell::screens::AddCommands(Window(), items);
    std::vector<std::string> titles;
    for (const auto& item : items)
        titles.push_back(item.item.title);
    for (const char* const title :
         {"Company Name", "Default Rent Account", "Expire Action", "Vacancy Rate %", "Late Rent",
          "Confirm Deletes", "Add New", "General Reports", "Exit", "Getting Started"}) {
        EXPECT_THAT(titles, Contains(title));
    }
    const shell::screens::frmPreferences preferences;
    for (const QCheckBox* const box : preferences.findChildren<QCheckBox*>()) {
        QString text = box->text();
        EXPECT_THAT(titles, Contains(FromScreen(text.remove(QLatin1Char('&')))));
    }
    for (const QAction* const item : Window().findChildren<QAction*>()) {
        const bool isCommand = item->objectName().startsWith(QLatin1String("mnu")) &&
                               !item->menu() && !item->isSeparator() && item->isVisible() &&
                               item->objectName() != QLatin1String("mnuSearch");
        QString text = item->text();
        if (!isCommand) continue;
        EXPECT_THAT(titles, Contains(FromScreen(text.remove(QLatin1Char('&')))));
    }
}

TEST_F(SearchEverything, EndsWithTheSession) {
    Window();
    Item("mnuSearch").trigger();
    support::SettleEvents();
    Window().close();
    support::SettleEvents();
    EXPECT_EQ(Open<frmSearch>(), nullptr);
    EXPECT_FALSE(std::filesystem::exists(Folder() / "Vestrel.mdb-wal")) << "nothing is left open";
}

} // namespace
