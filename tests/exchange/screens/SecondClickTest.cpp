#include <gmock/gmock.h>

#include <fstream>

#include "core/binding/Tags.h"
#include "exchange/screens/frmBackup.h"
#include "exchange/screens/frmCheck.h"
#include "exchange/screens/frmFinExport.h"
#include "exchange/screens/frmPort.h"
#include "exchange/screens/frmRestore.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "support/screens/DoubleClick.h"
#include "support/screens/Screens.h"

namespace {

namespace fs = std::filesystem;
using namespace exchange::screens;
using core::forms::Form;
using support::Find;

/// A user who presses the button again while a message, a question or a chooser is still open, and
/// answers Yes and with `file`.
class Insisting {
  public:
    explicit Insisting(std::string file) : state_(std::make_shared<State>()) {
        state_->file = std::move(file);
        platform::SetDialogs(std::make_unique<Answers>(state_));
        platform::SetChoosers(std::make_unique<Files>(state_));
    }
    ~Insisting() {
        platform::SetDialogs(nullptr);
        platform::SetChoosers(nullptr);
    }
    Insisting(const Insisting&) = delete;
    Insisting& operator=(const Insisting&) = delete;

    /// How often something was asked or said after one command of the button.
    int Click(QWidget& button) {
        state_->asked = 0;
        state_->button = &button;
        support::ClickOn(button);
        state_->button = nullptr;
        return state_->asked;
    }
    int DoubleClick(QWidget& button) {
        state_->asked = 0;
        support::DoubleClickOn(button);
        return state_->asked;
    }

  private:
    struct State {
        std::string file;
        QPointer<QWidget> button;
        int asked = 0;

        void Ask() {
            constexpr int kEnough = 5;
            if (++asked < kEnough && button) support::ClickOn(*button);
        }
    };

    class Answers : public platform::Dialogs {
      public:
        explicit Answers(std::shared_ptr<State> state) : state_(std::move(state)) {}
        void ShowMessage(std::string_view, std::string_view, platform::Icon) override {
            state_->Ask();
        }
        bool AskYesNo(std::string_view, std::string_view, platform::Icon) override {
            state_->Ask();
            return true;
        }

      private:
        std::shared_ptr<State> state_;
    };

    class Files : public platform::Choosers {
      public:
        explicit Files(std::shared_ptr<State> state) : state_(std::move(state)) {}
        std::optional<std::string> OpenFile(const platform::FileQuestion&) override {
            return Answer();
        }
        std::optional<std::string> SaveFile(const platform::FileQuestion&) override {
            return Answer();
        }
        std::optional<std::string> Folder(std::string_view, std::string_view) override {
            return Answer();
        }
        std::optional<std::uint32_t> Color(std::string_view, std::uint32_t) override { return {}; }

      private:
        std::string Answer() {
            state_->Ask();
            return state_->file;
        }
        std::shared_ptr<State> state_;
    };

    std::shared_ptr<State> state_;
};

class SecondClick : public support::ScreenTest {
  protected:
    SecondClick() {
        // Backups are as old as their files say.
        platform::SetToday(platform::ChangedAt(PathTo("Vestrel.mdb")).day);
        fs::create_directory(PathTo("Backup"));
        std::ofstream(PathTo("rows.csv")) << "\"Table\",\"Room\",\"/Table\"\n"
                                             "\"Fields\",\"IdRoom\",\"/Fields\"\n"
                                             "\"Record\",7000,\"/Record\"\n";
    }

    template <class Screen>
    static Form* Opened() {
        auto* const form = new Screen;
        form->Setup();
        return form;
    }
    static Form* Backup(const char* keepPeriods) {
        Form* const form = Opened<frmBackup>();
        support::Type(Find<QLineEdit>(*form, "txtKeepPeriods"), keepPeriods);
        return form;
    }
    static Form* Restore() {
        Form* const form = Opened<frmRestore>();
        Find<QLineEdit>(*form, "txtContainer").setText("/nowhere.vbk");
        Find<QPushButton>(*form, "cmdApply").setEnabled(true);
        return form;
    }
    static Form* Import(const char* option, const std::string& file) {
        Form* const form = Opened<frmPort>();
        Find<QTabWidget>(*form, "tabPort").setCurrentIndex(1);
        Find<QLineEdit>(*form, "txtImportFile").setText(QString::fromStdString(file));
        Find<QRadioButton>(*form, option).setChecked(true);
        return form;
    }
    static Form* Export() {
        Form* const form = Opened<frmFinExport>();
        Find<QTreeWidget>(*form, "lstAccounts").topLevelItem(0)->setCheckState(0, Qt::Checked);
        return form;
    }
    static Form* Tables() {
        Form* const form = Opened<frmPort>();
        support::ClickOn(Find<QPushButton>(*form, "cmdSelectAll"));
        return form;
    }
};

TEST_F(SecondClick, NeverActsTwice) {
    struct Command {
        const char* name;
        std::function<Form*()> open;
        const char* button;
        int asked; ///< messages, questions and choosers of one command
    };
    const std::string rows = PathTo("rows.csv");
    const Command commands[] = {
        {"export for bookkeeping", [] { return Export(); }, "cmdApply", 2},
        {"backup", [] { return Backup("5"); }, "cmdApply", 1},
        {"backup that keeps nothing", [] { return Backup("0"); }, "cmdApply", 2},
        {"folder of the backup", [] { return Backup("5"); }, "cmdBrowse", 1},
        {"restore", [] { return Restore(); }, "cmdApply", 1},
        {"container", [] { return Restore(); }, "cmdContainer", 1},
        {"folder to restore into", [] { return Restore(); }, "cmdFolder", 1},
        {"export of tables", [] { return Tables(); }, "cmdApply", 1},
        {"import file", [&] { return Import("optAppend", rows); }, "cmdBrowse", 1},
        {"import test", [&] { return Import("optAppend", rows); }, "cmdTest", 0},
        {"import", [&] { return Import("optAppend", rows); }, "cmdApply", 0},
        {"import instead", [&] { return Import("optOverwrite", rows); }, "cmdApply", 1},
        {"check", [] { return Opened<frmCheck>(); }, "cmdApply", 0},
    };
    for (const Command& command : commands) {
        Insisting user(PathTo("chosen.csv"));
        for (const bool isDouble : {false, true}) {
            Run("DELETE * FROM Room WHERE IdRoom = 7000");
            QPointer<Form> form(command.open());
            auto& button = Find<QPushButton>(*form, command.button);
            ASSERT_TRUE(button.isEnabled()) << command.name;
            EXPECT_EQ(isDouble ? user.DoubleClick(button) : user.Click(button), command.asked)
                << command.name << (isDouble ? ", double click" : "");
            EXPECT_LE(std::stoi(Ask("SELECT Count(*) FROM Room WHERE IdRoom = 7000")), 1)
                << command.name;
            EXPECT_TRUE(button.isEnabled()) << command.name;
            form->CloseUnasked();
            support::SettleEvents();
        }
    }
    Answer({});
}

TEST_F(SecondClick, OnImportAsksBeforeTheRowsAreThereTwice) {
    std::ofstream(PathTo("rows.csv"), std::ios::app) << "\"Record\",\"not a number\",\"/Record\"\n";
    const auto import = [&] {
        Form* const form = Import("optAppend", PathTo("rows.csv"));
        support::ClickAction(*form, "IMPORT");
        form->CloseUnasked();
    };
    const auto imported = [] { return Ask("SELECT Count(*) FROM Room WHERE IdRoom = 7000"); };
    Answer({false, true});
    import();
    EXPECT_EQ(Heard().size(), 1U) << "only the error in the second record";
    import();
    EXPECT_EQ(imported(), "1") << "No";
    EXPECT_NE(Heard().back().find("1 of the 2 records in this file is in the database already."),
              std::string::npos)
        << Heard().back();
    import();
    EXPECT_EQ(imported(), "2");
}

} // namespace
