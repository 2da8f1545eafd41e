#include "core/forms/RecordForm.h"

#include <QPushButton>
#include <algorithm>
#include <iterator>
#include <utility>

#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/Session.h"
#include "core/binding/Binding.h"
#include "core/binding/DayErrors.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ActionBar.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Dialogs.h"

namespace core::forms {

RecordForm::RecordForm(RecordPlace place, QWidget* parent, FormSizing sizing)
    : Form(parent, sizing), place_(std::move(place)) {}

void RecordForm::Wire() {
    binding::WireControls(*this);
    binding::ConnectChanges(*this, *this, [this] { MarkDirty(); });
    actions_ = findChild<ActionBar*>();
    connect(actions_, &ActionBar::ApplyClicked, this, &RecordForm::Apply);
    connect(actions_, &ActionBar::CloseClicked, this, &RecordForm::SaveAndClose);
    connect(actions_, &ActionBar::CancelClicked, this, &QWidget::close);
    connect(actions_, &ActionBar::HelpClicked, this, [this] { ShowHelp(*this); });
}

void RecordForm::OpenRecord(std::int32_t id, const std::function<void()>& fillLists) {
    const LoadingGuard loading(*this);
    id_ = id;
    dirty_ = false;
    binding::SetTag(*this, {});
    // A list that can't be filled to its end is no reason not to open.
    Guarded(fillLists);
    if (id_ != 0) Guarded([this] { Load(); });
    ShowCaption();
    ShowDirty();
    Open();
}

void RecordForm::FindRow(platform::Recordset& row) {
    row.Open(App().Connection,
             "SELECT * FROM " + place_.table + " WHERE " + place_.idField + " = ?",
             platform::CursorMode::Updatable, {id_});
}

void RecordForm::FindRowToWrite(platform::Recordset& row) {
    if (id_ != 0) {
        FindRow(row);
        if (!row.Eof()) return;
    } else {
        row.Open(App().Connection, place_.table, platform::CursorMode::AppendOnly);
    }
    row.AddNew();
    if (id_ == 0) id_ = NextId();
    row[place_.idField].Set(id_);
}

void RecordForm::ShowRow(platform::Recordset& row) {
    binding::BindFromRecord(*this, row);
}

void RecordForm::WriteRow(platform::Recordset& row) {
    binding::BindToRecord(*this, row);
}

void RecordForm::Store() {
    platform::Recordset row;
    FindRowToWrite(row);
    WriteRow(row);
    row.Update();
}

void RecordForm::Load() {
    platform::Recordset row;
    FindRow(row);
    if (row.Eof()) {
        id_ = 0;
        binding::SetTag(*this, {});
        RowMissing();
    } else {
        ShowRow(row);
        binding::SetTag(*this, id_ == 0 ? std::string() : std::to_string(id_));
    }
    ShowCaption();
}

bool RecordForm::Save() {
    if (!ShowErrorRoll(AllErrors()) || !Agreed()) return false;
    Store();
    NotifyAll(place_.kind, kRecordsChanged, 0);
    dirty_ = false;
    AfterSave();
    return true;
}

void RecordForm::Apply() {
    const LoadingGuard loading(*this);
    Guarded([this] {
        if (Save()) Load();
    });
    ShowDirty();
}

void RecordForm::SaveAndClose() {
    bool saved = false;
    Guarded([&] { saved = Save(); });
    ShowDirty();
    if (saved) close();
}

void RecordForm::MarkDirty() {
    if (loading_) return;
    dirty_ = true;
    ShowDirty();
}

bool RecordForm::MayClose() {
    if (!dirty_ || !Preferences().ConfirmCancel) return true;
    return platform::TheDialogs().AskYesNo("Whoa!", "Close without saving changes?",
                                           platform::Icon::Question);
}

void RecordForm::NotifyUpdate(std::int16_t kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    const LoadingGuard loading(*this);
    Refresh(kind);
}

void RecordForm::Refresh(std::int16_t /*kind*/) {}

void RecordForm::ShowDirty() {
    if (actions_) actions_->Apply().setEnabled(dirty_);
}

/// The screen's own lines, and one for each typed day that is none.
std::vector<std::string> RecordForm::AllErrors() {
    std::vector<std::string> lines = Errors();
    std::ranges::move(binding::DayErrors(*this), std::back_inserter(lines));
    return lines;
}

} // namespace core::forms
