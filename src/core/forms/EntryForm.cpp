#include "core/forms/EntryForm.h"

#include <QPushButton>

#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/binding/DayErrors.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ActionBar.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Dialogs.h"

namespace core::forms {

void EntryForm::Wire(const QString& text, const QString& hint, std::string_view tag) {
    binding::WireControls(*this);
    binding::ConnectChanges(*this, *this, [this] { MarkDirty(); });
    auto* const actions = findChild<ActionBar*>();
    actions->Apply().hide();
    actions->Close().setText(text);
    actions->Close().setToolTip(hint);
    binding::SetTag(actions->Close(), tag);
    connect(actions, &ActionBar::CloseClicked, this, &EntryForm::Submit);
    connect(actions, &ActionBar::CancelClicked, this, &QWidget::close);
    connect(actions, &ActionBar::HelpClicked, this, [this] { ShowHelp(*this); });
}

void EntryForm::Begin(const std::function<void()>& fill) {
    dirty_ = false;
    Quietly([&] { Guarded(fill); });
    Open();
}

void EntryForm::Submit() {
    bool kept = false;
    Perform([&] {
        if (!ShowErrorRoll(Errors()) || !Agreed()) return;
        Store();
        kept = true;
    });
    if (!kept) return;
    dirty_ = false;
    close();
}

std::vector<std::string> EntryForm::Errors() {
    return binding::DayErrors(*this);
}

void EntryForm::Refresh(RecordKind /*kind*/) {}

void EntryForm::Quietly(const std::function<void()>& work) {
    const bool before = loading_;
    loading_ = true;
    try {
        work();
    } catch (...) {
        loading_ = before;
        throw;
    }
    loading_ = before;
}

void EntryForm::MarkDirty() {
    if (!loading_) dirty_ = true;
}

bool EntryForm::MayClose() {
    if (!dirty_ || !Preferences().ConfirmCancel) return true;
    return platform::TheDialogs().AskYesNo("Whoa!", "Close without saving changes?",
                                           platform::Icon::Question);
}

void EntryForm::NotifyUpdate(RecordKind kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    Quietly([&] { Refresh(kind); });
}

} // namespace core::forms
