#include "core/forms/Form.h"

#include <QCloseEvent>
#include <QLayout>
#include <QShortcut>

#include "core/binding/Tags.h"
#include "core/forms/Help.h"
#include "core/forms/OpenForms.h"
#include "core/forms/WindowPlace.h"
#include "platform/qt/Text.h"

namespace core::forms {

Form::Form(QWidget* parent, FormSizing sizing)
    : QDialog(parent, Qt::Window),
      sizing_(sizing),
      token_([this](std::int16_t kind, std::int16_t action, std::int32_t id) {
          NotifyUpdate(kind, action, id);
      }) {
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const help = new QShortcut(QKeySequence(QKeySequence::HelpContents), this);
    connect(help, &QShortcut::activated, this, [this] { ShowHelp(*this); });
    AddOpenForm(*this);
}

std::int32_t Form::OpenRecordId() const {
    return platform::qt::ToScreen(binding::TagOf(*this)).toInt();
}

void Form::CloseUnasked() {
    asks_ = false;
    close();
}

bool Form::AskToClose() {
    return !asks_ || MayClose();
}

void Form::reject() {
    close();
}

void Form::Open() {
    Restore();
    show();
}

void Form::NotifyUpdate(std::int16_t /*kind*/, std::int16_t /*action*/, std::int32_t /*id*/) {}

void Form::closeEvent(QCloseEvent* event) {
    if (!AskToClose()) {
        event->ignore();
        return;
    }
    SaveWindow(*this);
    event->accept();
}

void Form::Restore() {
    if (isPlaced_) return;
    isPlaced_ = true;
    if (sizing_ == FormSizing::Fixed && layout())
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    RestoreWindow(*this, sizing_);
}

} // namespace core::forms
