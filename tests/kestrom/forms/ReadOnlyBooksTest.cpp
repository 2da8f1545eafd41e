#include <gmock/gmock.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <utility>

#include "core/binding/Binding.h"
#include "core/binding/DateEdit.h"
#include "core/binding/MoneyEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/EntryForm.h"
#include "core/forms/RecordForm.h"
#include "kestrom/forms/Openings.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "shell/screens/frmKestrom.h"
#include "support/screens/Driving.h"

namespace {

using core::forms::Form;
using platform::qt::FromScreen;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Closes what would wait for somebody: menus and modal windows.
class Unattended {
  public:
    Unattended() {
        QObject::connect(&timer_, &QTimer::timeout, [] {
            if (QWidget* const menu = QApplication::activePopupWidget()) {
                menu->close();
            } else if (QWidget* const window = QApplication::activeModalWidget()) {
                window->close();
            }
        });
        timer_.start(5);
    }

  private:
    QTimer timer_;
};

/// The sample portfolio, open for reading only.
class ReadOnlyBooks : public tests::EveryForm {
  protected:
    ReadOnlyBooks() {
        Run("UPDATE OwnerLink SET IdBuilding = 0"); // so that no choice of one is a duplicate
        OpenBooks(platform::OpenMode::ReadOnly);
    }

    static void OpenBooks(platform::OpenMode mode) {
        const std::filesystem::path file = core::App().Connection.File();
        core::App().Connection.Close();
        core::App().Connection.Open(file, mode);
    }
    std::string BooksOnDisk() { return platform::ReadWholeFile(PathTo("sample/Vestrel.mdb")); }

    static std::string ShownIn(const QWidget& control) {
        if (const auto* const line = qobject_cast<const QLineEdit*>(&control))
            return FromScreen(line->text());
        if (const auto* const page = qobject_cast<const QPlainTextEdit*>(&control))
            return FromScreen(page->toPlainText());
        if (const auto* const combo = qobject_cast<const QComboBox*>(&control))
            return FromScreen(combo->currentText());
        return {};
    }
    /// Returns the contents of the boxes by their names.
    static std::map<std::string, std::string> Entries(const Form& form) {
        std::map<std::string, std::string> entries;
        for (const QWidget* const control : core::binding::ControlsOf(form))
            entries[FromScreen(control->objectName())] += ShownIn(*control);
        return entries;
    }
    /// Enters something everywhere: what a new record needs, and for a stored one a change.
    static void Fill(const Form& form) {
        using namespace core::binding;
        for (QWidget* const control : ControlsOf(form)) {
            if (!control->isEnabledTo(&form)) continue;
            if (auto* const combo = qobject_cast<QComboBox*>(control)) {
                combo->setCurrentIndex(combo->count() - 1);
                if (combo->isEditable() && combo->currentText().isEmpty())
                    combo->setEditText(QStringLiteral("Some"));
            } else if (auto* const day = qobject_cast<DateEdit*>(control)) {
                day->SetDay(platform::Date(2026, 12, 24));
            } else if (auto* const line = qobject_cast<QLineEdit*>(control)) {
                const std::string tag = TagOf(*line);
                const bool isNumber =
                    !tag.empty() && std::string("#$&%").find(tag[0]) != std::string::npos;
                const bool isMoney = qobject_cast<MoneyEdit*>(line) != nullptr;
                if (!line->isReadOnly()) support::Type(*line, isNumber || isMoney ? "7" : "Some");
            } else if (auto* const page = qobject_cast<QPlainTextEdit*>(control)) {
                if (!page->isReadOnly()) support::Type(*page, "Some");
            }
        }
    }
    /// Runs the commands of the form that aren't in `done`, with every question answered with Yes,
    /// until there are no more or one has closed the form. Returns true in the latter case.
    bool RunCommands(Form& form, std::set<std::string>& done) {
        const QPointer<Form> opened(&form);
        while (QObject* const command = NextCommand(form, done)) {
            KeepWhatWasHeard();
            Answer(std::deque<bool>(20, true));
            if (auto* const button = qobject_cast<QAbstractButton*>(command)) button->click();
            if (auto* const action = qobject_cast<QAction*>(command)) action->trigger();
            support::SettleEvents();
            for (Form* const other : Open()) {
                if (other != opened) other->CloseUnasked();
            }
            if (!opened || !opened->isVisible()) return true;
        }
        return false;
    }
    static QObject* NextCommand(const Form& form, std::set<std::string>& done) {
        const auto isNext = [&](const QObject& command) {
            const QString name = command.objectName();
            if (name.isEmpty() || name.startsWith(QLatin1String("qt_"))) return false;
            const QString place = command.parent()->objectName() + QLatin1Char('.');
            return done.insert(FromScreen(place + name)).second;
        };
        for (auto* const button : form.findChildren<QAbstractButton*>()) {
            const bool isCommand =
                button->isVisible() && button->isEnabled() && !button->isCheckable();
            if (isCommand && isNext(*button)) return button;
        }
        for (auto* const action : form.findChildren<QAction*>()) {
            if (action->isEnabled() && !action->menu() && isNext(*action)) return action;
        }
        return nullptr;
    }
    void KeepWhatWasHeard() {
        for (const std::string& line : Heard())
            heard_ += line + "\n";
    }
    bool IsToldThatNothingIsSaved() {
        KeepWhatWasHeard();
        return std::exchange(heard_, {}).find("These books can only be read.") != std::string::npos;
    }

  private:
    std::string heard_;
};

TEST_F(ReadOnlyBooks, KeepWhatWasEnteredAndSayThatNothingIsSaved) {
    const std::string before = BooksOnDisk();
    std::set<std::string> faults;
    int forms = 0;
    for (const tests::Opening& opening : Openings()) {
        Answer({});
        opening.open();
        support::SettleEvents();
        ASSERT_EQ(Open().size(), 1U) << opening.name;
        EXPECT_THAT(Heard(), IsEmpty()) << opening.name;
        Form& form = *Open().front();
        auto* const record = qobject_cast<core::forms::RecordForm*>(&form);
        auto* const entry = qobject_cast<core::forms::EntryForm*>(&form);
        // An adjustment goes to the form of its mortgage, which saves it.
        const bool saves = (record || entry) && opening.name != "frmMortgageAdjust";
        if (saves) {
            ++forms;
            Fill(form);
            const auto entered = Entries(form);
            for (const bool closes : {false, true}) {
                Answer({true, true, true});
                if (record) {
                    closes ? record->SaveAndClose() : record->Apply();
                } else {
                    entry->Submit();
                }
                const std::vector<std::string> heard = Heard();
                const bool isTold =
                    !heard.empty() &&
                    heard.back().find("These books can only be read.") != std::string::npos;
                if (!isTold) faults.insert(opening.name + " says " + testing::PrintToString(heard));
                if (!form.isVisible()) {
                    faults.insert(opening.name + " closes");
                    break;
                }
                if (record ? !record->Dirty() : !entry->Dirty())
                    faults.insert(opening.name + " forgets that it was changed");
                if (Entries(form) != entered) faults.insert(opening.name + " loses entries");
            }
        }
        core::forms::CloseAllForms();
        support::SettleEvents();
    }
    EXPECT_THAT(faults, IsEmpty());
    EXPECT_GT(forms, 40);
    EXPECT_EQ(BooksOnDisk(), before);
}

TEST_F(ReadOnlyBooks, KeepAWizardOpenThatCannotFinish) {
    const std::string before = BooksOnDisk();
    for (const tests::Opening& opening : Openings()) {
        if (!opening.name.ends_with("Wizard")) continue;
        opening.open();
        ASSERT_EQ(Open().size(), 1U) << opening.name;
        const Form& wizard = *Open().front();
        auto& next = support::Find<QPushButton>(wizard, "cmdNext");
        std::vector<std::string> heard;
        for (int step = 0; step < 10 && heard.empty(); ++step) {
            Fill(wizard);
            Answer({true, true});
            next.click();
            heard = Heard();
        }
        EXPECT_THAT(heard, ElementsAre(HasSubstr("These books can only be read."))) << opening.name;
        EXPECT_TRUE(wizard.isVisible()) << opening.name;
        core::forms::CloseAllForms();
        support::SettleEvents();
    }
    EXPECT_EQ(BooksOnDisk(), before);
}

TEST_F(ReadOnlyBooks, LetNoCommandOfAFormWrite) {
    const std::string before = BooksOnDisk();
    const Unattended closing;
    std::set<std::string> refused;
    for (const tests::Opening& opening : Openings()) {
        std::set<std::string> done;
        do {
            core::forms::CloseAllForms();
            support::SettleEvents();
            opening.open();
            support::SettleEvents();
        } while (RunCommands(*Open().front(), done));
        if (IsToldThatNothingIsSaved()) refused.insert(opening.name);
    }
    for (const char* const form : {"Lease", "Mortgage", "Building", "Mileage", "mnuAutoEvents"})
        EXPECT_TRUE(refused.contains(form)) << form;
    EXPECT_EQ(BooksOnDisk(), before);
}

TEST_F(ReadOnlyBooks, LetNoCommandOfTheMainWindowWrite) {
    const std::string before = BooksOnDisk();
    const Unattended closing;
    shell::screens::WindowServices services;
    services.commands = kestrom::MenuCommands();
    services.hasEditor = core::HasEditor;
    services.end.endProcess = [] {};
    shell::screens::frmKestrom window(services);
    window.Setup({});
    const std::set<std::string> ofRecords = {"mnuEdit", "mnuFind", "mnuCopyRows", "mnuPrint"};
    std::set<std::string> run;
    for (const core::RecordKind kind :
         {core::kAlert, core::kAccount, core::kLease, core::kMortgage, core::kTenant,
          core::kWorkOrder, core::kTransaction, core::kUnit}) {
        for (QAction* const action : window.findChildren<QAction*>()) {
            window.SetSelectedDb(kind);
            const std::string item = FromScreen(action->objectName());
            if (!action->isEnabled() || action->menu() || item == "mnuExit") continue;
            if (!run.insert(item).second && !ofRecords.contains(item)) continue;
            Answer(std::deque<bool>(20, true));
            action->trigger();
            support::SettleEvents();
            core::forms::CloseAllForms();
            support::SettleEvents();
        }
    }
    EXPECT_THAT(run, testing::IsSupersetOf(ofRecords));
    for (const char* const item : {"mnuAdd", "mnuDelete", "mnuCopy", "mnuPayRent"})
        EXPECT_FALSE(run.contains(item)) << item;
    EXPECT_EQ(BooksOnDisk(), before);
}

} // namespace
