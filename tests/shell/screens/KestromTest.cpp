#include <gmock/gmock.h>

#include <QMenuBar>
#include <QStatusTipEvent>
#include <set>

#include "core/DailyRun.h"
#include "core/EditRecord.h"
#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/RecordHelpers.h"
#include "core/Session.h"
#include "core/forms/Form.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "shell/screens/KestromFixture.h"

namespace support {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Kestrom : public tests::KestromTest {
  protected:
    /// Of these items, those that can be chosen.
    std::vector<std::string> Enabled(std::initializer_list<const char*> items) {
        std::vector<std::string> enabled;
        for (const char* const item : items) {
            if (Item(item).isEnabled()) enabled.emplace_back(item);
        }
        return enabled;
    }
};

TEST_F(Kestrom, OpensOnTheHomePageWithoutRecordCommands) {
    EXPECT_EQ(FromScreen(Window().windowTitle()), "Vestrel - Elm & Sons");
    EXPECT_EQ(Window().SelectedDb(), core::kAlert);
    EXPECT_TRUE(support::Find<QWidget>(Window(), "ucAlerts").isVisible());
    EXPECT_EQ(Window().focusWidget(), &support::Find<QWidget>(Window(), "lvwAlerts"));
    EXPECT_FALSE(Grid().isVisible());
    EXPECT_EQ(Status(), "");
    EXPECT_THAT(Enabled({"mnuAdd", "mnuEdit", "mnuDelete", "mnuPrint", "mnuPrintGrid", "mnuCopy",
                         "mnuFind"}),
                IsEmpty());
    EXPECT_TRUE(Item("mnuRefreshSummary").isVisible());
    EXPECT_FALSE(Item("mnuPayRent").isVisible());
    EXPECT_FALSE(Item("mnuRestoreTransCategories").isVisible());
}

TEST_F(Kestrom, OffersWhatThereIsWorkFor) {
    const auto note = [this](const char* item) {
        return [this, item](const shell::screens::Selection& on) {
            log_.push_back(std::string(item) + " " + std::to_string(core::KindNumber(on.kind)) +
                           " " + std::to_string(on.id));
        };
    };
    services_.commands.Add(QStringLiteral("mnuPayRent"), note("mnuPayRent"));
    services_.commands.Add(QStringLiteral("mnuConfig"), note("mnuConfig"));
    EXPECT_THAT(Enabled({"mnuConfig", "mnuPayRent", "mnuFinExport", "mnuMileage", "mnuBackup",
                         "mnuExit", "mnuHelpContents"}),
                ElementsAre("mnuConfig", "mnuExit", "mnuHelpContents"));
    Go("LEASES");
    EXPECT_THAT(Enabled({"mnuAdd", "mnuEdit", "mnuPayRent", "mnuDelete", "mnuPrintGrid"}),
                ElementsAre("mnuAdd", "mnuEdit", "mnuPayRent", "mnuDelete"));
    EXPECT_TRUE(Item("mnuPayRent").isVisible());
    EXPECT_TRUE(Item("mnuDatabaseSep").isVisible());
    EXPECT_FALSE(Item("mnuCopy").isVisible());
    Grid().SelectId(41);
    Item("mnuPayRent").trigger();
    Go("FINANCIAL");
    // Transactions have no editor yet.
    EXPECT_THAT(Enabled({"mnuAdd", "mnuEdit", "mnuCopy"}), IsEmpty());
    EXPECT_TRUE(Item("mnuCopy").isVisible());
    Item("mnuConfig").trigger();
    EXPECT_THAT(log_, ElementsAre("mnuPayRent 2 41", "mnuConfig 10 90"));
}

TEST_F(Kestrom, OpensRecordsByMenuMouseAndKeyboard) {
    Go("LEASES");
    EXPECT_EQ(Window().SelectedId(), 40);
    QTest::keyClick(&Grid(), Qt::Key_Down);
    QTest::keyClick(&Grid(), Qt::Key_Return);
    QTest::keyClick(&Window(), Qt::Key_E, Qt::ControlModifier);
    QTest::keyClick(&Window(), Qt::Key_N, Qt::ControlModifier);
    const QRect cell = Grid().visualRect(Grid().Model().index(2, 3));
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_THAT(log_, ElementsAre("2 41", "2 41", "2 0", "2 42"));
    log_.clear();
    Go("UNITS");
    Item("mnuCopy").trigger();
    EXPECT_THAT(log_, ElementsAre("29 0"));
    QTest::keyClick(&Window(), Qt::Key_6, Qt::ControlModifier);
    EXPECT_EQ(Window().SelectedDb(), core::kTenant);
}

TEST_F(Kestrom, OffersTheWizardsOnItsHomePage) {
    services_.commands.Add(QStringLiteral("mnuMortgageWizard"),
                           [this](const auto&) { log_.emplace_back("wizard"); });
    EXPECT_FALSE(support::Find<QToolButton>(Window(), "WIZ_LEASE").isEnabled());
    support::ClickOn(support::Find<QToolButton>(Window(), "WIZ_MORTGAGE"));
    EXPECT_THAT(log_, ElementsAre("wizard"));
}

TEST_F(Kestrom, LooksAheadFromItsHomePageAndItsMenu) {
    services_.commands.Add(QStringLiteral("mnuLookAhead"),
                           [this](const auto&) { log_.emplace_back("look ahead"); });
    const auto& button = support::Find<QToolButton>(Window(), "btnLookAhead");
    EXPECT_EQ(button.text(), QStringLiteral("Look Ahead"));
    QTest::mouseClick(&support::Find<QToolButton>(Window(), "btnLookAhead"), Qt::LeftButton);
    QTest::keyClick(&Window(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_THAT(log_, ElementsAre("look ahead", "look ahead"));
}

TEST_F(Kestrom, DeletesTheSelectedRecordOfThoseWhoAgree) {
    Answer({false, true});
    Go("TENANTS");
    Grid().SelectId(32);
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "3");
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant WHERE IdTenant = 32"), "0");
    EXPECT_EQ(Heard().size(), 2U);
    EXPECT_EQ(Status(), "Selected 2 Tenant records");
    EXPECT_EQ(Window().SelectedId(), 32) << "until another row is selected";
    QTest::keyClick(&Grid(), Qt::Key_Down);
    EXPECT_EQ(Window().SelectedId(), 31) << "the row next to it";
}

TEST_F(Kestrom, ActsOnHighlightedRowsOnly) {
    Answer({true, true, true});
    Go("TENANTS");
    Grid().SelectId(31);
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    ASSERT_EQ(Ask("SELECT Count(*) FROM Tenant"), "2");
    // A question takes the focus away, and the list gets it back.
    Find<QLineEdit>(Window(), "txtSearch").setFocus();
    Grid().setFocus();
    EXPECT_TRUE(Grid().selectionModel()->selection().isEmpty());
    EXPECT_THAT(Enabled({"mnuEdit", "mnuDelete", "mnuCopy", "mnuCopyRows"}), IsEmpty());
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    QTest::keyClick(&Grid(), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "2") << "nothing is highlighted";
    EXPECT_THAT(log_, IsEmpty());

    Grid().selectAll();
    EXPECT_THAT(Enabled({"mnuEdit", "mnuDelete", "mnuCopyRows"}), ElementsAre("mnuCopyRows"));
    EXPECT_THAT(FromScreen(Item("mnuDelete").toolTip()), HasSubstr("Select only one record."));
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "2") << "not the last row of several";
}

TEST_F(Kestrom, SaysWhyAnItemIsDisabledAndOffersNoneThatDoesNothing) {
    for (QAction* const item : Window().findChildren<QAction*>()) {
        if (!item->objectName().startsWith(QLatin1String("mnu")) || item->menu()) continue;
        if (item->isSeparator() || item->isEnabled() || !item->isVisible()) continue;
        EXPECT_TRUE(item->toolTip().contains(QLatin1Char('\n'))) << FromScreen(item->objectName());
    }
    EXPECT_THAT(FromScreen(Item("mnuEdit").toolTip()), HasSubstr("Choose a list"));
    EXPECT_FALSE(Item("mnuCalculator").isEnabled()) << "it isn't installed";
    Go("LEASES");
    EXPECT_EQ(FromScreen(Item("mnuEdit").toolTip()), "Open the selected record (Ctrl+E)");
}

TEST_F(Kestrom, KeepsItsStatusWhenMenusShowTheirs) {
    Go("LEASES");
    QStatusTipEvent tip(QStringLiteral("of a menu"));
    QApplication::sendEvent(&Window(), &tip);
    QStatusTipEvent none{QString()};
    QApplication::sendEvent(&Window(), &none);
    EXPECT_EQ(Status(), "Selected 3 Lease records");
    EXPECT_TRUE(Find<QLabel>(Window(), "lblStatus").isVisible());
}

TEST_F(Kestrom, KeepsTheMessagesOfAllEventsOfADay) {
    core::Preferences().KeepDays = 0;
    int passes = 0;
    core::RegisterRunStep(core::RunStep::ScheduledEvents, [&](core::RunListener&) {
        for (; passes < 2; ++passes) {
            core::AddAlert("Message " + std::to_string(passes), {});
            core::NotifyAll(core::kAutoEvent, core::kRecordsChanged, 0);
            core::LetMessagesRun();
        }
    });
    Window().Tick();
    core::SetMessagePump([] { SettleEvents(); });
    platform::SetToday(platform::Date(2024, 5, 18));
    Window().Tick();
    SettleEvents();
    core::SetMessagePump(nullptr);
    core::RegisterRunStep(core::RunStep::ScheduledEvents, nullptr);
    const auto& list = Find<QListWidget>(Window(), "lvwAlerts");
    std::vector<std::string> messages;
    for (int row = 0; row < list.count(); ++row) {
        const std::string text = FromScreen(list.item(row)->text());
        if (text.starts_with("Message")) messages.push_back(text);
    }
    EXPECT_THAT(messages, ElementsAre("Message 0", "Message 1"));
}

TEST_F(Kestrom, SaysWhatToDoFirstInEmptyBooks) {
    for (const char* const table : {"Lease", "Mortgage", "Unit", "Building"})
        Run(std::string("DELETE FROM ") + table);
    core::RegisterOpener(core::kBuilding, [this](const core::EditRequest& request) {
        log_.push_back("28 " + std::to_string(request.id));
    });
    auto& step = Find<QWidget>(Window(), "firstStep");
    EXPECT_TRUE(step.isVisible());
    Find<QPushButton>(Window(), "cmdFirstStep").click();
    core::RegisterOpener(core::kBuilding, nullptr);
    EXPECT_THAT(log_, ElementsAre("28 0"));
    Run("INSERT INTO Unit (IdUnit) VALUES (20)");
    Item("mnuRefreshSummary").trigger();
    EXPECT_EQ(FromScreen(Find<QPushButton>(Window(), "cmdFirstStep").text()), "Add a Lease");
    Run("INSERT INTO Lease (IdLease) VALUES (40)");
    Item("mnuRefreshSummary").trigger();
    EXPECT_FALSE(step.isVisible());
}

TEST_F(Kestrom, ShowsBooksThatItMayOnlyRead) {
    core::App().Connection.Open(Folder() / "Vestrel.mdb", platform::OpenMode::ReadOnly);
    Go("LEASES");
    EXPECT_EQ(Status(), "Selected 3 Lease records");
    EXPECT_THAT(Enabled({"mnuAdd", "mnuEdit", "mnuDelete", "mnuCopyRows"}),
                ElementsAre("mnuEdit", "mnuCopyRows"));
    EXPECT_THAT(FromScreen(Item("mnuDelete").toolTip()), HasSubstr("open for reading only"));
    Go("ALERTS");
    EXPECT_THAT(FromScreen(Find<QLabel>(Window(), "lblBooks").text()), HasSubstr("reading only"));
    EXPECT_TRUE(Find<QLabel>(Window(), "lblBooks").isVisible());
}

TEST_F(Kestrom, NamesTheReasonWhyTheBooksCannotBeOpened) {
    core::App().Connection.Close();
    MakeFile("letter", "a letter to my tenant, not a database");
    std::string file = PathTo("letter");
    ASSERT_FALSE(core::OpenDatabase(core::App().Connection, file));
    auto& notice = Find<QLabel>(Window(), "lblBooks");
    EXPECT_TRUE(notice.isVisible());
    EXPECT_THAT(FromScreen(notice.text()), HasSubstr(core::App().OpenFault));
    core::App().OpenFault.clear();
    Item("mnuRefreshSummary").trigger();
    EXPECT_FALSE(notice.isVisible());
}

TEST_F(Kestrom, PrintsTheViewThroughTheScratchReport) {
    std::filesystem::path printed;
    services_.viewReport = [&](const std::filesystem::path& file) { printed = file; };
    Go("UNITS");
    support::Choose(Window(), "cboView", "Hold");
    Item("mnuPrintGrid").trigger();
    EXPECT_THAT(platform::ReadWholeFile(printed),
                testing::HasSubstr("SQLQuery=SELECT Unit.Status, Address, Unit, City, State, "
                                   "Bedrooms, Bathrooms, SqFt AS [Size], Rent FROM Building "));
}

TEST_F(Kestrom, RestoresCategoriesForExpertsWhoAgree) {
    core::App().Expert = true;
    Answer({false, true});
    Window();
    Run("DELETE FROM TransCategory");
    EXPECT_TRUE(Item("mnuRestoreTransCategories").isVisible());
    Item("mnuRestoreTransCategories").trigger();
    EXPECT_EQ(Ask("SELECT Count(*) FROM TransCategory"), "0");
    Item("mnuRestoreTransCategories").trigger();
    EXPECT_NE(Ask("SELECT Count(*) FROM TransCategory"), "0");
    const std::string question =
        "Confirm Action: Restoring default transaction categories will erase the currently "
        "defined categories \nand replace them with the default ones. Are you sure you want to "
        "do this?";
    EXPECT_THAT(Heard(),
                ElementsAre(question, question,
                            "Success: Default Transaction Categories have been restored."));
}

TEST_F(Kestrom, FollowsTheCompanysName) {
    Window();
    Run("UPDATE Configuration SET CompanyName = 'Oak Homes'");
    core::NotifyAll(core::kConfiguration, core::kRecordsChanged, 0);
    EXPECT_EQ(FromScreen(Window().windowTitle()), "Vestrel - Oak Homes");
}

TEST_F(Kestrom, RunsTheBooksWhenTheDayChanges) {
    int runs = 0;
    core::RegisterRunStep(core::RunStep::ScheduledEvents, [&](core::RunListener& listener) {
        ++runs;
        Window().Tick(); // a tick in the middle of a run starts no other
        listener.Posted(core::kLease, 40, "Smith",
                        {{platform::Today(), "Rent", platform::Currency::FromUnits(9)}});
    });
    Window().Tick();
    EXPECT_EQ(runs, 0);
    auto& posted = support::Find<QToolButton>(Window(), "btnPosted");
    EXPECT_FALSE(posted.isVisible());
    platform::SetToday(platform::Date(2024, 5, 18));
    Window().Tick();
    Window().Tick();
    core::RegisterRunStep(core::RunStep::ScheduledEvents, nullptr);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(FromScreen(posted.text()), "Since 05/18/2024: 1 rent charge");

    posted.click();
    const QWidget* list = nullptr;
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmPosted")) list = window;
    }
    ASSERT_NE(list, nullptr);
    QTest::keyClick(&support::Find<QWidget>(*list, "lvwPosted"), Qt::Key_Return);
    EXPECT_THAT(log_, ElementsAre("2 40"));
    EXPECT_TRUE(list->isVisible()) << "Enter opens the record and leaves the list open";
}

/// A record screen with unsaved changes.
class DirtyForm : public core::forms::Form {
  public:
    explicit DirtyForm(bool& mayClose) : mayClose_(mayClose) { Open(); }

  protected:
    bool MayClose() override { return mayClose_; }

  private:
    bool& mayClose_;
};

TEST_F(Kestrom, EndsInOrderOnceNoFormObjects) {
    bool mayClose = false;
    const QPointer<DirtyForm> form = new DirtyForm(mayClose);
    Go("LEASES");
    Window().close();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(core::App().Connection.IsOpen());
    EXPECT_THAT(log_, IsEmpty());
    mayClose = true;
    Window().close();
    SettleEvents();
    EXPECT_FALSE(Window().isVisible());
    EXPECT_FALSE(core::App().Connection.IsOpen());
    EXPECT_TRUE(form.isNull());
    EXPECT_THAT(log_, ElementsAre("end"));
}

TEST_F(Kestrom, EndsUnaskedWhateverIsOpen) {
    bool mayClose = false;
    const QPointer<DirtyForm> form = new DirtyForm(mayClose);
    Window().EndUnasked();
    Window().EndUnasked();
    SettleEvents();
    EXPECT_TRUE(form.isNull());
    EXPECT_FALSE(core::App().Connection.IsOpen());
    EXPECT_THAT(log_, ElementsAre("end"));
}

TEST_F(Kestrom, WaitsWithTheEndForAUnitOfWork) {
    Window();
    {
        const platform::UnitOfWork work(core::App().Connection);
        Window().close();
        EXPECT_TRUE(core::App().Connection.IsOpen());
        EXPECT_THAT(log_, IsEmpty());
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return !log_.empty(); }));
    EXPECT_THAT(log_, ElementsAre("end"));
}

TEST_F(Kestrom, BacksUpOnExitWhenAsked) {
    services_.end.startBackup = [this] { log_.emplace_back("backup"); };
    services_.end.isBackupWanted = [] { return false; };
    EXPECT_TRUE(Item("mnuBackup").isEnabled());
    Item("mnuBackup").trigger();
    Window().close();
    EXPECT_THAT(log_, ElementsAre("backup"));
}

TEST_F(Kestrom, ComesBackWhereItStood) {
    Window().setGeometry(40, 60, 700, 500);
    Reopen();
    EXPECT_EQ(Window().size(), QSize(700, 500));
}

TEST_F(Kestrom, NamesItsControlsAndLetters) {
    for (const char* const tag : {"LEASES", "FINANCIAL"}) {
        Go(tag);
        EXPECT_THAT(MnemonicFaults(Window()), IsEmpty());
        EXPECT_THAT(TabOrderFaults(Window()), IsEmpty());
        EXPECT_THAT(NameFaults(Window()), IsEmpty());
    }
    for (QMenu* const menu : Window().menuBar()->findChildren<QMenu*>()) {
        std::set<QString> letters;
        for (const QAction* const item : menu->actions()) {
            if (item->isSeparator()) continue;
            const QString letter = QKeySequence::mnemonic(item->text()).toString();
            EXPECT_FALSE(letter.isEmpty()) << FromScreen(item->text());
            EXPECT_TRUE(letters.insert(letter).second) << FromScreen(item->text());
        }
    }
}

} // namespace
} // namespace support
