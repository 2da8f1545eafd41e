#include <gmock/gmock.h>

#include <QProgressBar>
#include <QTimer>

#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "dbmender/frmDbMender.h"
#include "exchange/Container.h"
#include "exchange/screens/frmRestore.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "store/CreateDatabase.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

namespace {

using platform::qt::FromScreen;
using platform::qt::ToScreen;
using support::ClickOn;
using support::Find;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MenderScreen : public support::ScreenTest {
  protected:
    MenderScreen() { MakeFile("kestrom"); }

    dbmender::frmDbMender& Open(bool warns = false, const char* dbName = "Default") {
        const auto start = [this](const std::filesystem::path& program,
                                  const std::vector<std::string>& arguments) {
            started_.push_back(program.filename().string());
            started_.insert(started_.end(), arguments.begin(), arguments.end());
            return true;
        };
        window_ = std::make_unique<dbmender::frmDbMender>(
            dbmender::MenderLine{warns, false, PathTo("kestrom"), dbName}, start);
        window_->Setup();
        return *window_;
    }
    std::string Finding() const { return FromScreen(Find<QLabel>(*window_, "lblFinding").text()); }
    std::string Objection() const {
        return FromScreen(Find<QLabel>(*window_, "lblObjection").text());
    }
    QLineEdit& FolderBox() const { return Find<QLineEdit>(*window_, "txtFolder"); }
    QPushButton& Mend() const { return Find<QPushButton>(*window_, "cmdMend"); }
    void Pick(const char* option) const { Find<QRadioButton>(*window_, option).click(); }
    static std::string Registered(const char* name) {
        return core::GetRegString(core::kDatabasesKey, name, "-");
    }

    std::unique_ptr<dbmender::frmDbMender> window_;
    std::vector<std::string> started_;
};

TEST_F(MenderScreen, MakesAnEmptyDatabaseForANewcomer) {
    Open(true);
    EXPECT_EQ(Heard(), std::vector<std::string>{"Database Mender: Close all other Vestrel programs "
                                                "before you go on."});
    EXPECT_EQ(Finding(), "Vestrel does not know yet where your database is.");
    EXPECT_EQ(FromScreen(FolderBox().text()), PathTo("db"));
    EXPECT_FALSE(Find<QRadioButton>(*window_, "optWriteVersion").isVisible());
    QTest::keyClick(window_.get(), Qt::Key_Return);
    EXPECT_EQ(Registered("Default"), PathTo("db") + "/");
    EXPECT_THAT(started_, ElementsAre("kestrom"));
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MenderScreen, PointsAtAnExistingDatabaseOfAnotherName) {
    core::SetRegString(core::kDatabasesKey, "second", PathTo("gone"));
    store::CreateDatabase(PathTo("mine"));
    Open(false, "second");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(Finding(), "The folder " + PathTo("gone") + " is missing.");
    EXPECT_TRUE(Find<QRadioButton>(*window_, "optUseExisting").isChecked());
    EXPECT_FALSE(Mend().isEnabled());
    EXPECT_EQ(Objection(), "Choose another folder, or one of the other answers.") << "not twice";
    support::Type(FolderBox(), PathTo("mine"));
    EXPECT_EQ(Objection(), "");
    Pick("optMakeEmpty");
    EXPECT_EQ(FromScreen(FolderBox().text()), PathTo("mine")) << "the user's folder stays";
    EXPECT_THAT(Objection(), HasSubstr("a database in this folder already"));
    EXPECT_FALSE(Mend().isEnabled());
    Pick("optUseExisting");
    ClickOn(Mend());
    EXPECT_EQ(Registered("second"), PathTo("mine") + "/");
    EXPECT_EQ(Registered("Default"), "-");
    EXPECT_THAT(started_, ElementsAre("kestrom", "/altdb=second"));
}

TEST_F(MenderScreen, SaysWhyItCannotMakeOne) {
    MakeFile("locked");
    Open();
    support::Type(FolderBox(), PathTo("locked/db"));
    ClickOn(Mend());
    const auto heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_THAT(heard.front(), HasSubstr("locked"));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(Mend().isEnabled());
    EXPECT_EQ(Registered("Default"), "-");
}

TEST_F(MenderScreen, CanBeStoppedWhileItMakesTheSample) {
    shell::RegisterLogic();
    Open();
    Pick("optMakeSample");
    bool worked = false;
    QTimer ticks; // a frozen window would let none of them through
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        const auto& bar = Find<QProgressBar>(*window_, "prgWork");
        if (bar.value() < 3) return;
        worked = bar.isVisible() && !Mend().isEnabled();
        QTest::keyClick(window_.get(), Qt::Key_Escape);
        ticks.stop();
    });
    ticks.start(0);
    ClickOn(Mend());
    EXPECT_TRUE(worked);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(Mend().isEnabled());
    EXPECT_THAT(started_, IsEmpty());
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(PathTo("db/Vestrel.mdb")));
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MenderScreen, RestoresABackupAndOpensItToLookAt) {
    store::CreateDatabase(PathTo("mine"));
    std::string result;
    exchange::PackDatabase(PathTo("Vestrel.0.vbk"), PathTo("mine/Vestrel.mdb"), {}, result);
    exchange::PackFile(PathTo("Vestrel.0.vbk"), PathTo("mine/Version"),
                       exchange::FileType::Database, result);
    ASSERT_EQ(result, "Success");
    const support::ScriptedChoosers choosers({PathTo("Vestrel.0.vbk")});
    Open();
    ClickOn(Find<QPushButton>(*window_, "cmdRestore"));
    const QPointer<exchange::screens::frmRestore> form =
        window_->findChild<exchange::screens::frmRestore*>();
    ASSERT_TRUE(form);
    ClickOn(Find<QPushButton>(*form, "cmdContainer"));
    Answer({true});
    support::ClickAction(*form, "RESTORE");
    const std::string folder = PathTo("Vestrel.0 restored");
    EXPECT_THAT(started_, ElementsAre("kestrom", "--data", folder, "--read-only"));
    EXPECT_TRUE(Find<QRadioButton>(*window_, "optUseExisting").isChecked());
    EXPECT_EQ(FromScreen(FolderBox().text()), folder);
    EXPECT_EQ(Objection(), "");
    QTest::keyClick(form, Qt::Key_Escape);
    support::SettleEvents();
    EXPECT_FALSE(form);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MenderScreen, LooksAndReadsRight) {
    store::CreateDatabase(PathTo("mine"));
    std::filesystem::remove(PathTo("mine/Version"));
    core::SetRegString(core::kDatabasesKey, "Default", PathTo("mine"));
    Open();
    EXPECT_TRUE(Find<QRadioButton>(*window_, "optWriteVersion").isChecked());
    EXPECT_EQ(Objection(), "");
    EXPECT_FALSE(FolderBox().isEnabled());
    EXPECT_THAT(support::Portray(*window_, "frmDbMender-version"), IsEmpty());
    Pick("optUseExisting");
    EXPECT_THAT(support::LookFaults(*window_, "frmDbMender"), IsEmpty());
}

TEST_F(MenderScreen, CreatesTheFirstBooksOfANewUserByKeyboard) {
    Open();
    int backs = 0;
    window_->SetupFor(dbmender::Beginning::Create, [&] { ++backs; });
    QApplication::setActiveWindow(window_.get());
    EXPECT_EQ(window_->focusWidget(), &Find<QLineEdit>(*window_, "txtCompany"));
    support::TypeAndTab(*window_, "Elm & Sons");
    support::TypeAndTab(*window_, "12 Elm St");
    support::TypeAndTab(*window_, "B");
    support::TypeOn(*window_->focusWidget(), "99999999999999999999");
    EXPECT_EQ(Objection(), "The rent is not an amount of money.");
    EXPECT_FALSE(Mend().isEnabled());
    support::Type(Find<QLineEdit>(*window_, "txtRent"), "950.50");
    auto& since = Find<QLineEdit>(*window_, "dpSince");
    const platform::Date today = platform::Today();
    const platform::Date first(today.Year(), today.Month(), 1);
    EXPECT_EQ(since.text().toStdString(), first.ToText());
    support::Type(since, "13/45");
    EXPECT_THAT(Objection(), HasSubstr("is not a valid date"));
    EXPECT_FALSE(Mend().isEnabled());
    support::Type(since, "10/01/2023");
    EXPECT_THAT(support::LookFaults(*window_, "frmDbMender-first"), IsEmpty());
    Pick("optMakeSample");
    EXPECT_FALSE(Find<QLineEdit>(*window_, "txtCompany").isVisible());
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_EQ(backs, 1) << "back to the welcome page";
    EXPECT_EQ(Registered("Default"), "-");

    window_->SetupFor(dbmender::Beginning::Create, {});
    EXPECT_EQ(FromScreen(Find<QLineEdit>(*window_, "txtAddress").text()), "12 Elm St");
    QTest::keyClick(window_.get(), Qt::Key_Return);
    EXPECT_THAT(started_, ElementsAre("kestrom"));
    ASSERT_EQ(Registered("Default"), PathTo("db") + "/");
    core::App().Connection.Open(PathTo("db/Vestrel.mdb"));
    EXPECT_EQ(Ask("SELECT CompanyName FROM Configuration"), "Elm & Sons");
    EXPECT_EQ(Ask("SELECT Rent FROM Unit WHERE Unit = 'B'"), "950.5");
    EXPECT_EQ(Ask("SELECT Content FROM BooksSetting"), "10/01/2023");
}

TEST_F(MenderScreen, WelcomesWithFourWaysToBegin) {
    EXPECT_TRUE(dbmender::HasNoBooks("Default"));
    dbmender::frmWelcome welcome;
    std::vector<dbmender::Beginning> chosen;
    QObject::connect(&welcome, &dbmender::frmWelcome::Chosen, &welcome,
                     [&](dbmender::Beginning beginning) { chosen.push_back(beginning); });
    welcome.show();
    support::SettleEvents();
    for (const char* const way : {"cmdCreate", "cmdOpen", "cmdSample", "cmdRestore"})
        ClickOn(Find<QPushButton>(welcome, way));
    using dbmender::Beginning;
    EXPECT_THAT(chosen, ElementsAre(Beginning::Create, Beginning::OpenExisting, Beginning::Sample,
                                    Beginning::Restore));
    EXPECT_THAT(support::LookFaults(welcome, "frmWelcome"), IsEmpty());
    QTest::keyClick(&welcome, Qt::Key_Escape);
    EXPECT_FALSE(welcome.isVisible());
    core::SetRegString(core::kDatabasesKey, "Default", PathTo("gone"));
    EXPECT_FALSE(dbmender::HasNoBooks("Default")) << "there were books once";
}

} // namespace
