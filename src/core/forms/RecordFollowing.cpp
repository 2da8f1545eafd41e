// How a record's screen follows changes made elsewhere, including its deletion.

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <algorithm>

#include "core/RecordKinds.h"
#include "core/forms/Notice.h"
#include "core/forms/RecordForm.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Text.h"

namespace core::forms {

using platform::qt::ToScreen;

RecordForm::Fields RecordForm::FieldsOf(platform::Recordset& row) {
    Fields fields;
    for (std::size_t i = 0; i < row.FieldCount(); ++i)
        fields.emplace_back(row[i].Name(), row[i].Value());
    return fields;
}

void RecordForm::NotifyUpdate(RecordKind kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    const LoadingGuard loading(*this);
    const binding::Controls touched = Touched();
    Refresh(kind);
    // The form itself loads the row again after its own saves.
    if (!storing_) FollowRow(touched);
}

/// Another program doesn't broadcast, so its changes are looked up when the window is activated.
void RecordForm::changeEvent(QEvent* event) {
    Form::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || IsBusy()) return;
    try {
        const LoadingGuard loading(*this);
        FollowRow(Touched());
    } catch (const std::exception&) {
        // A database that can't be read is reported by the save.
    }
}

void RecordForm::FollowRow(const binding::Controls& touched) {
    if (read_.empty()) return;
    platform::Recordset row;
    FindRow(row);
    if (row.Eof()) return ShowDeleted(true);
    ShowDeleted(false);
    Fields now = FieldsOf(row);
    if (now != read_ && !dirty_) return Load();
    read_ = std::move(now);
    fields_.ShowUntouched(*this, row, touched);
    FollowOthers(touched);
    fields_.Settle(*this, touched);
}

/// Shows or hides the line at the top of a screen whose record was deleted elsewhere.
void RecordForm::ShowDeleted(bool isDeleted) {
    if (!deleted_ && !isDeleted) return;
    if (!deleted_) {
        const QString kind = ToScreen(RecordKindName(place_.kind)).toLower();
        deleted_ = MakeNotice(*this, QStringLiteral("lblDeleted"));
        deleted_->setText(tr("This %1 was deleted while it was open here. Close saves it again as "
                             "it is shown; Cancel leaves it deleted.")
                              .arg(kind));
        if (auto* const page = qobject_cast<QBoxLayout*>(layout())) page->insertWidget(0, deleted_);
    }
    deleted_->setVisible(isDeleted);
}

RecordForm::RowState RecordForm::FindState() {
    if (read_.empty()) return RowState::New;
    platform::Recordset row;
    FindRow(row);
    return row.Eof() ? RowState::Deleted : RowState::Stored;
}

/// A record deleted elsewhere is restored only if the user means it: they changed something below
/// the line that says so, or they are asked.
bool RecordForm::AgreedToRestore() {
    const bool knows = deleted_ && deleted_->isVisible() && dirty_;
    if (knows) return true;
    ShowDeleted(true);
    std::string kind(RecordKindName(place_.kind));
    std::ranges::transform(kind, kind.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return platform::TheDialogs().AskYesNo(
        "Deleted", "This " + kind + " was deleted while it was open here. Save it again?",
        platform::Icon::Question);
}

} // namespace core::forms
