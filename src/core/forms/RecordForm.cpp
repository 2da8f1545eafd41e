#include "core/forms/RecordForm.h"

#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>
#include <iterator>
#include <utility>

#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/Rows.h"
#include "core/binding/DayErrors.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ActionBar.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "core/forms/RecordBar.h"
#include "platform/dialogs/Dialogs.h"

namespace core::forms {

RecordForm::RecordForm(RecordPlace place, QWidget* parent, FormSizing sizing)
    : Form(parent, sizing), place_(std::move(place)), fields_(place_.tagTable) {}

void RecordForm::Wire() {
    binding::WireControls(*this);
    binding::ConnectChanges(*this, *this, [this] { MarkDirty(); });
    actions_ = findChild<ActionBar*>();
    connect(actions_, &ActionBar::ApplyClicked, this, &RecordForm::Apply);
    connect(actions_, &ActionBar::CloseClicked, this, &RecordForm::SaveAndClose);
    connect(actions_, &ActionBar::CancelClicked, this, &QWidget::close);
    connect(actions_, &ActionBar::HelpClicked, this, [this] { ShowHelp(*this); });
    bar_ = new RecordBar(*this, place_.kind,
                         {[this] { Apply(); }, [this] { SaveAndClose(); },
                          [this] {
                              if (dirty_ || (id_ == 0 && SavesUntouched())) {
                                  Apply();
                              } else if (id_ == 0) {
                                  platform::TheDialogs().ShowMessage(
                                      "Note", "Enter or select a record first.",
                                      platform::Icon::Information);
                              }
                              return !dirty_ && id_ != 0;
                          }});
}

std::vector<Subject> RecordForm::Subjects() const {
    return {{place_.kind, id_}};
}

void RecordForm::ShowSubjects() {
    if (bar_) bar_->Show(Subjects());
}

void RecordForm::OpenRecord(std::int32_t id, const std::function<void()>& fillLists,
                            std::function<void()> propose) {
    const LoadingGuard loading(*this);
    id_ = id;
    dirty_ = false;
    propose_ = std::move(propose);
    read_.clear();
    fields_.Forget();
    binding::SetTag(*this, {});
    // If a list can't be read completely, the form opens all the same.
    Guarded(fillLists);
    fields_.KeepBlanks(*this);
    if (id_ != 0) Guarded([this] { Load(); });
    if (id_ == 0 && propose_ && read_.empty()) Guarded(propose_);
    ShowCaption();
    ShowSubjects();
    ShowDirty();
    Open();
}

void RecordForm::FindRow(platform::Recordset& row) {
    row = Write("SELECT * FROM " + place_.table + " WHERE " + place_.idField + " = ?", {id_});
}

void RecordForm::FindRowToWrite(platform::Recordset& row) {
    RowToWrite record(place_.table, place_.idField, id_);
    id_ = record.id;
    writesNewRow_ = record.isNew;
    row = std::move(record.row);
    if (!writesNewRow_) return;
    const bool isMeant = read_.empty() || (deleted_ && !deleted_->isHidden());
    if (!isMeant) // deleted after Save looked, and before the unit of work began
        throw platform::ConflictError("The record was deleted in the meantime. Nothing was saved.");
    for (const auto& [field, value] : read_)
        row[field].Set(value);
}

void RecordForm::FillListsFor(platform::Recordset& /*row*/) {}

void RecordForm::ShowRow(platform::Recordset& row) {
    fields_.Show(*this, row);
}

void RecordForm::WriteRow(platform::Recordset& row) {
    fields_.Write(*this, row,
                  writesNewRow_ ? binding::WriteFields::All : binding::WriteFields::Touched);
}

void RecordForm::Store() {
    platform::UnitOfWork unit(App().Connection);
    platform::Recordset row;
    FindRowToWrite(row);
    WriteRow(row);
    row.Update();
    StoreRest();
    unit.Commit();
}

void RecordForm::Load() {
    platform::Recordset row;
    FindRow(row);
    if (row.Eof()) {
        // The screen continues as a new record with the same contents.
        id_ = 0;
        read_.clear();
        fields_.Forget();
        binding::SetTag(*this, {});
        RowMissing();
    } else {
        read_ = FieldsOf(row);
        FillListsFor(row);
        ShowRow(row);
        binding::SetTag(*this, id_ == 0 ? std::string() : std::to_string(id_));
    }
    ShowDeleted(false);
    ShowCaption();
    ShowSubjects();
    fields_.Settle(*this);
}

void RecordForm::BecomeNew() {
    id_ = 0;
    read_.clear();
    fields_.Forget();
    binding::SetTag(*this, {});
    ShowDeleted(false);
    ShowCaption();
    ShowSubjects();
}

void RecordForm::ShowRecord(std::int32_t id) {
    const LoadingGuard loading(*this);
    dirty_ = false;
    fields_.ShowBlanks(*this);
    BecomeNew();
    id_ = id;
    try {
        if (id_ != 0) Load();
    } catch (...) {
        id_ = 0; // a save must not write blanks over the record
        throw;
    }
    if (id_ == 0 && propose_) propose_();
    ShowDirty();
}

bool RecordForm::Save() {
    if (!ShowErrorRoll(AllErrors())) return false;
    const RowState state = FindState();
    if (state == RowState::Deleted && !AgreedToRestore()) return false;
    if (!Agreed()) return false;
    const QScopedValueRollback storing(storing_, true);
    const std::int32_t idBefore = id_;
    try {
        if (dirty_ || state != RowState::Stored) Store();
    } catch (...) {
        id_ = idBefore;
        throw;
    }
    NotifyAll(place_.kind, kRecordsChanged, 0);
    dirty_ = false;
    AfterSave();
    return true;
}

void RecordForm::Apply() {
    const LoadingGuard loading(*this);
    Perform([this] {
        if (Save()) Load();
    });
    ShowDirty();
}

void RecordForm::SaveAndClose() {
    bool saved = false;
    const bool nothing = id_ == 0 && !dirty_ && !SavesUntouched();
    Perform([&] { saved = nothing || Save(); });
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

void RecordForm::Refresh(RecordKind /*kind*/) {}

void RecordForm::FollowOthers(const binding::Controls& /*touched*/) {}

void RecordForm::ShowDirty() {
    if (actions_) {
        actions_->Apply().setEnabled(dirty_);
        actions_->Apply().setToolTip(dirty_ ? tr("Save and stay") : tr("Nothing was changed"));
    }
    if (bar_) bar_->SetCanApply(dirty_);
}

/// Returns the screen's own errors and a line for each typed date that isn't valid. Stored text
/// that isn't a date doesn't stop the rest from being saved.
std::vector<std::string> RecordForm::AllErrors() {
    std::vector<std::string> lines = Errors();
    const auto touched = [this](const QWidget& box) { return IsTouched(box); };
    std::ranges::move(binding::DayErrors(*this, touched), std::back_inserter(lines));
    return lines;
}

} // namespace core::forms
