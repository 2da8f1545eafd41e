#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <map>
#include <set>

#include "core/binding/Binding.h"
#include "core/binding/DateEdit.h"
#include "core/binding/MoneyEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/EntryForm.h"
#include "core/forms/RecordForm.h"
#include "kestrom/forms/Openings.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "support/screens/Driving.h"

namespace {

using core::forms::Form;
using platform::qt::FromScreen;
using testing::IsEmpty;

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
        if (record || entry) {
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

} // namespace
