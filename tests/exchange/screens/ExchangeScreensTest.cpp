#include <QTimer>
#include <fstream>

#include "core/MessagePump.h"
#include "core/binding/DateEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/OpenForms.h"
#include "exchange/BackupConfig.h"
#include "exchange/FinExportSettings.h"
#include "exchange/screens/frmBackup.h"
#include "exchange/screens/frmCheck.h"
#include "exchange/screens/frmFinExport.h"
#include "exchange/screens/frmPort.h"
#include "exchange/screens/frmRestore.h"
#include "platform/system/Clock.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

namespace {

namespace fs = std::filesystem;
using namespace exchange::screens;
using support::ClickAction;
using support::ClickOn;
using support::Find;
using support::Type;
using testing::IsEmpty;
using Said = std::vector<std::string>;

std::string ReadText(const fs::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

std::string RowsOf(const QWidget& form, const char* name) {
    const auto& list = Find<QTreeWidget>(form, name);
    std::string text;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        for (int column = 0; column < list.columnCount(); ++column) {
            if (list.isColumnHidden(column)) continue;
            text += list.topLevelItem(i)->text(column).toStdString() + "|";
        }
        text += "\n";
    }
    return text;
}

class ExchangeScreens : public support::ScreenTest {
  protected:
    ExchangeScreens() {
        Run("DELETE * FROM Account");
        Run("DELETE * FROM Transactions");
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (901, 'operating account')");
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (902, 'Escrow')");
        Run("INSERT INTO Transactions (IdTransaction, DateEffective, DebitId, CreditId, Amount, "
            "DebitExported, CreditExported) VALUES (903, '05/10/2024', 901, 902, 10, False, "
            "False)");
        Run("INSERT INTO Transactions (IdTransaction, DateEffective, DebitId, CreditId, Amount, "
            "DebitExported, CreditExported) VALUES (904, '01/10/2024', 901, 0, 10, False, False)");
    }

    template <class Screen>
    static QPointer<Screen> Open() {
        QPointer<Screen> form(new Screen);
        form->Setup();
        return form;
    }

    static void Tick(const QWidget& form, int row) {
        Find<QTreeWidget>(form, "lstAccounts").topLevelItem(row)->setCheckState(0, Qt::Checked);
    }
    static void Choose(const QWidget& form, const char* button) {
        Find<QRadioButton>(form, button).click();
    }
};

TEST_F(ExchangeScreens, ExportsTheCheckedAccounts) {
    const support::ScriptedChoosers choosers({PathTo("first"), PathTo("second.iif")});
    QPointer<frmFinExport> form = Open<frmFinExport>();
    ClickOn(Find<QCheckBox>(*form, "chkShowCount"));
    EXPECT_EQ(RowsOf(*form, "lstAccounts"), "Escrow|1|\noperating account|2|\n");

    ClickAction(*form, "EXPORT");
    EXPECT_EQ(Heard(), Said{"Select Accounts: No accounts selected for export."});
    Tick(*form, 0);
    Tick(*form, 1);
    Choose(*form, "optFinType1");
    ClickAction(*form, "EXPORT");
    EXPECT_EQ(Heard(), Said{"QIF Export Error: Quicken can only export one account at a time, "
                            "please just check one account."});
    EXPECT_THAT(choosers.Asked(), IsEmpty());

    Choose(*form, "optFinType0");
    ClickOn(Find<QCheckBox>(*form, "chkMarkExported"));
    ClickAction(*form, "EXPORT");
    EXPECT_EQ(Heard(), Said{"Export Success: 3 records successfully exported."});
    EXPECT_EQ(choosers.Asked().back().title, "Select Export File");
    EXPECT_TRUE(choosers.Asked().back().start.ends_with("/export.csv"));
    EXPECT_EQ(choosers.Asked().back().filters.front().name, "CSV - Comma Delimited");
    EXPECT_TRUE(ReadText(PathTo("first.csv")).starts_with("Date,CheckNum,"));
    EXPECT_EQ(RowsOf(*form, "lstAccounts"), "Escrow|0|\noperating account|0|\n");

    Choose(*form, "optFinType2");
    ClickAction(*form, "EXPORT");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_TRUE(
        heard[0].starts_with("Quickbooks Note: If you do not already have matching bank "
                             "account names set up, Quickbooks will create them for "
                             "you.\n\nIf you do not have"));
    EXPECT_EQ(heard[1], "Export Success: No records found for export.");
    EXPECT_EQ(choosers.Asked().back().start, PathTo("first.iif"));
    ClickAction(*form, "EXPORT"); // cancelled at the dialog
    EXPECT_EQ(Heard().size(), 1U);
    ClickAction(*form, "CLOSE");
    support::SettleEvents();
    EXPECT_TRUE(form.isNull());
    const exchange::FinExportSettings kept = exchange::LoadFinExportSettings();
    EXPECT_EQ(kept.finType, exchange::FinType::Iif);
    EXPECT_TRUE(kept.markExported && kept.showCount && !kept.limitLength);
    EXPECT_EQ(kept.lastFileName, PathTo("second"));
    // Settings that are only shown stay as they were stored.
    form = Open<frmFinExport>();
    ClickAction(*form, "CLOSE");
    support::SettleEvents();
    EXPECT_TRUE(exchange::LoadFinExportSettings().markExported);
    EXPECT_FALSE(exchange::LoadFinExportSettings().sortDescending);
}

TEST_F(ExchangeScreens, RefusesDaysInTheWrongOrder) {
    QPointer<frmFinExport> form = Open<frmFinExport>();
    ClickOn(Find<QCheckBox>(*form, "chkShowCount"));
    auto& start = Find<core::binding::DateEdit>(*form, "dpTransStart");
    auto& end = Find<core::binding::DateEdit>(*form, "dpTransEnd");
    EXPECT_FALSE(start.isEnabled());
    Choose(*form, "optTransRange2");
    EXPECT_EQ(start.text(), QStringLiteral("04/17/2024"));
    EXPECT_EQ(end.text(), QStringLiteral("05/17/2024"));
    EXPECT_EQ(RowsOf(*form, "lstAccounts"), "Escrow|1|\noperating account|1|\n");
    const auto enter = [&](QLineEdit& box, const char* day) {
        box.setFocus();
        Type(box, day);
        QTest::keyClick(&box, Qt::Key_Tab);
    };
    form->activateWindow();
    support::SettleEvents();
    enter(start, "5/18/2024");
    EXPECT_EQ(Heard(), Said{"Check Date Selections: Start Date must be earlier than End Date"});
    EXPECT_EQ(start.text(), QStringLiteral("04/17/2024"));
    enter(end, "4/16/2024");
    EXPECT_EQ(Heard(), Said{"Check Date Selections: End Date must be later than Start Date"});
    EXPECT_EQ(end.text(), QStringLiteral("05/17/2024"));
    enter(start, "1/1/2024");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(RowsOf(*form, "lstAccounts"), "Escrow|1|\noperating account|2|\n");
}

TEST_F(ExchangeScreens, MovesTablesOutAndIn) {
    const support::ScriptedChoosers choosers(
        {PathTo("database.csv"), PathTo("database.csv"), PathTo("database.csv")});
    QPointer<frmPort> form = Open<frmPort>();
    const auto status = [&] {
        return Find<QPlainTextEdit>(*form, "txtStatus").toPlainText().toStdString();
    };
    EXPECT_TRUE(status().starts_with("Status: Database configuration read.\nTotal Tables = "));
    ClickAction(*form, "EXPORT");
    EXPECT_EQ(Heard().size(), 1U) << "no table is selected";
    ClickOn(Find<QPushButton>(*form, "cmdSelectAll"));
    ClickAction(*form, "EXPORT");
    EXPECT_TRUE(status().starts_with("Status: Export completed.\n")) << status();

    Find<QTabWidget>(*form, "tabPort").setCurrentIndex(1);
    QTest::mouseClick(&Find<QLineEdit>(*form, "txtImportFile"), Qt::LeftButton);
    EXPECT_EQ(choosers.Asked().back().title, "Select Import File");
    ClickOn(Find<QPushButton>(*form, "cmdTest"));
    EXPECT_TRUE(status().starts_with("Status: Import test succeeded ...\n")) << status();
    Choose(*form, "optOverwrite");
    ClickAction(*form, "IMPORT");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_TRUE(status().starts_with("Status: Import test succeeded ...\n")) << "No was answered";
    Answer({true});
    ClickAction(*form, "IMPORT");
    EXPECT_TRUE(status().starts_with("Status: Import completed.\n")) << status();
    EXPECT_NE(status().find("Vestrel before import 1.mdb"), std::string::npos);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Account"), "2");
}

TEST_F(ExchangeScreens, BacksUpAndKeepsItsSettings) {
    // Containers are as old as their files say.
    platform::SetToday(platform::ChangedAt(PathTo("Vestrel.mdb")).day);
    fs::create_directory(PathTo("Backup"));
    bool closed = false;
    QPointer<frmBackup> form(new frmBackup);
    form->Setup([&] { closed = true; });
    EXPECT_EQ(RowsOf(*form, "lstResults"), "Press Start when ready to begin backup||\n");
    ClickAction(*form, "START");
    EXPECT_EQ(Heard(), Said{"Backup: The backup was completed successfully."});
    const std::string rows = RowsOf(*form, "lstResults");
    EXPECT_TRUE(rows.starts_with("Starting backup|Success|\n")) << rows;
    EXPECT_TRUE(rows.ends_with("The backup was completed successfully.|Success|\n")) << rows;

    Type(Find<QLineEdit>(*form, "txtKeepPeriods"), "");
    ClickAction(*form, "START");
    EXPECT_EQ(Heard(),
              Said{"Whoa!: The following errors have occured:\n\nThe time that backups are "
                   "kept must be given.\n"});
    Type(Find<QLineEdit>(*form, "txtKeepPeriods"), "0");
    ClickAction(*form, "START");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_NE(heard[0].find("none would be left at the end"), std::string::npos);
    EXPECT_TRUE(fs::exists(PathTo("Backup/Vestrel.0.vbk"))) << "No was answered";
    Type(Find<QLineEdit>(*form, "txtBackupPath"), std::string(300, 'x'));
    ClickAction(*form, "CLOSE");
    EXPECT_TRUE(Heard()[0].starts_with("Whoa!"));
    ASSERT_FALSE(form.isNull());
    Type(Find<QLineEdit>(*form, "txtBackupPath"), PathTo("Backup"));
    support::Choose(*form, "cboKeepInterval", "Week(s)");
    ClickAction(*form, "CLOSE");
    support::SettleEvents();
    EXPECT_TRUE(closed && form.isNull());
    exchange::BackupConfig config;
    exchange::LoadBackupConfig(config);
    EXPECT_EQ(config.keepPeriods, 0);
    EXPECT_EQ(config.keepInterval, 2);
    EXPECT_EQ(config.backupPath, PathTo("Backup/"));
    EXPECT_EQ(exchange::LastBackupText(config), "Last Backup: " + platform::Today().ToText());
}

/// Second clicks, keys and a wish to close that arrive while a command runs.
class Impatience {
  public:
    explicit Impatience(QWidget& form, const char* word) {
        core::SetMessagePump([] { QCoreApplication::processEvents(); });
        QObject::connect(&ticks_, &QTimer::timeout, &form, [this, &form, word] {
            ++clicks_;
            for (QPushButton* const button : form.findChildren<QPushButton*>()) {
                if (core::binding::TagOf(*button) == word) ClickOn(*button);
            }
            QTest::keyClick(&form, Qt::Key_Escape);
            form.close();
            mayClose_ = mayClose_ || core::forms::MayCloseAllForms();
        });
        ticks_.start(0);
    }
    ~Impatience() { core::SetMessagePump({}); }
    Impatience(const Impatience&) = delete;
    Impatience& operator=(const Impatience&) = delete;

    void Stop() { ticks_.stop(); }
    int Clicks() const { return clicks_; }
    bool MayClose() const { return mayClose_; }

  private:
    QTimer ticks_;
    int clicks_ = 0;
    bool mayClose_ = false;
};

TEST_F(ExchangeScreens, TakeNoSecondCommandWhileOneRuns) {
    fs::create_directory(PathTo("Backup"));
    QPointer<frmBackup> backup = Open<frmBackup>();
    {
        Impatience impatience(*backup, "START");
        ClickAction(*backup, "START");
        impatience.Stop();
        EXPECT_GT(impatience.Clicks(), 0);
        EXPECT_FALSE(impatience.MayClose());
    }
    ASSERT_TRUE(backup && backup->isVisible());
    EXPECT_EQ(Heard(), Said{"Backup: The backup was completed successfully."});
    EXPECT_FALSE(fs::exists(PathTo("Backup/Vestrel.1.vbk")));
    ClickAction(*backup, "CLOSE");

    std::ofstream file(PathTo("many.csv"));
    file << "\"Table\",\"Room\",\"/Table\"\n\"Fields\",\"IdRoom\",\"/Fields\"\n";
    for (int i = 0; i < 3000; ++i)
        file << "\"Record\"," << 1000 + i << ",\"/Record\"\n";
    file.close();
    const support::ScriptedChoosers choosers({PathTo("many.csv")});
    QPointer<frmPort> port = Open<frmPort>();
    Find<QTabWidget>(*port, "tabPort").setCurrentIndex(1);
    ClickOn(Find<QPushButton>(*port, "cmdBrowse"));
    {
        Impatience impatience(*port, "IMPORT");
        ClickAction(*port, "IMPORT");
        impatience.Stop();
        EXPECT_GT(impatience.Clicks(), 0);
        EXPECT_FALSE(impatience.MayClose());
    }
    ASSERT_TRUE(port && port->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room WHERE IdRoom >= 1000"), "3000");
}

TEST_F(ExchangeScreens, RestoresABackup) {
    fs::create_directory(PathTo("Backup"));
    QPointer<frmBackup> backup = Open<frmBackup>();
    ClickAction(*backup, "START");
    Heard();
    const support::ScriptedChoosers choosers({PathTo("Backup/Vestrel.0.vbk")});
    fs::path opened;
    QPointer<frmRestore> form(new frmRestore);
    form->Setup([&](const fs::path& folder) { opened = folder; });
    ClickOn(Find<QPushButton>(*form, "cmdContainer"));
    EXPECT_EQ(Find<QTreeWidget>(*form, "lstEntries").topLevelItemCount(), 3);
    EXPECT_EQ(Find<QLabel>(*form, "lblSummary").text(),
              QStringLiteral("The backup is whole: 3 files."));
    EXPECT_THAT(support::LookFaults(*form, "frmRestore"), IsEmpty());
    Answer({true});
    ClickAction(*form, "RESTORE");
    const fs::path folder = PathTo("Backup/Vestrel.0 restored");
    EXPECT_EQ(opened, folder);
    EXPECT_TRUE(fs::exists(folder / "Vestrel.mdb"));
    Heard();
    ClickAction(*form, "RESTORE"); // the folder isn't new any more
    EXPECT_NE(Heard()[0].find("is there already"), std::string::npos);
    form->activateWindow();
    support::SettleEvents();
    Find<QLineEdit>(*form, "txtContainer").setFocus();
    Type(Find<QLineEdit>(*form, "txtContainer"), PathTo("Vestrel.mdb"));
    QTest::keyClick(&Find<QLineEdit>(*form, "txtContainer"), Qt::Key_Tab);
    EXPECT_NE(Find<QLabel>(*form, "lblSummary")
                  .text()
                  .indexOf(QStringLiteral("is not a backup of Vestrel")),
              -1);
}

TEST_F(ExchangeScreens, ShowsWhatTheCheckFinds) {
    Run("INSERT INTO Room (IdRoom, IdUnit) VALUES (901, 77)");
    QPointer<frmCheck> form = Open<frmCheck>();
    const std::string rows = RowsOf(*form, "lstFindings");
    EXPECT_NE(rows.find("Fault|The identifier 901 belongs to several records: Account, Room|"),
              std::string::npos)
        << rows;
    EXPECT_THAT(support::LookFaults(*form, "frmCheck"), IsEmpty());
    const auto& finding = Find<QPlainTextEdit>(*form, "txtFinding");
    EXPECT_TRUE(finding.toPlainText().startsWith(
        QStringLiteral("The identifier 901 belongs to several records: Account, Room.\nIf a file")))
        << finding.toPlainText().toStdString();
    QTest::keyClick(&Find<QTreeWidget>(*form, "lstFindings"), Qt::Key_Down);
    EXPECT_TRUE(finding.toPlainText().startsWith(QStringLiteral("1 record of Room")));
    Run("DELETE * FROM Room WHERE IdRoom = 901");
    ClickAction(*form, "START");
    EXPECT_EQ(RowsOf(*form, "lstFindings").find("901"), std::string::npos);
}

} // namespace
