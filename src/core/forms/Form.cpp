#include "core/forms/Form.h"

#include <QCloseEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTabWidget>

#include "core/RecordKinds.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/FitScreen.h"
#include "core/forms/Help.h"
#include "core/forms/OpenForms.h"
#include "core/forms/WindowPlace.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"

namespace core::forms {

Form::Form(QWidget* parent, FormSizing sizing)
    : QDialog(parent, Qt::Window),
      sizing_(sizing),
      token_([this](RecordKind kind, std::int16_t action, std::int32_t id) {
          NotifyUpdate(kind, action, id);
      }) {
    platform::qt::GuardPresses();
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const help = new QShortcut(QKeySequence(QKeySequence::HelpContents), this);
    connect(help, &QShortcut::activated, this, [this] { ShowHelp(*this); });
    AddOpenForm(*this);
    // A drop-down list takes Ctrl+Tab for itself.
    for (const int step : {1, -1}) {
        const auto* const keys = step > 0 ? "Ctrl+Tab" : "Ctrl+Shift+Tab";
        auto* const turn = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        connect(turn, &QShortcut::activated, this, [this, step] { TurnPage(step); });
    }
}

std::int32_t Form::OpenRecordId() const {
    return platform::qt::ToScreen(binding::TagOf(*this)).toInt();
}

void Form::CloseUnasked() {
    asks_ = false;
    close();
}

bool Form::AskToClose() {
    return !asks_ || (!busy_ && MayClose());
}

void Form::reject() {
    close();
}

bool Form::Perform(const std::function<void()>& command) {
    if (busy_ || closed_) return false;
    const QScopedValueRollback busy(busy_, true);
    return Guarded(command);
}

void Form::Open() {
    Restore();
    closed_ = false;
    show();
    FitToScreen(*this);
    FocusFirstEntry(*this);
}

void Form::NotifyUpdate(RecordKind /*kind*/, std::int16_t /*action*/, std::int32_t /*id*/) {}

void Form::closeEvent(QCloseEvent* event) {
    if (busy_ || !AskToClose()) {
        event->ignore();
        return;
    }
    closed_ = true;
    SaveWindow(*this);
    event->accept();
}

/// Shows the next page among the enabled tabs.
void Form::TurnPage(int step) {
    auto* const tabs = findChild<QTabWidget*>();
    if (!tabs || tabs->count() == 0) return;
    int page = tabs->currentIndex();
    do {
        page = (page + step + tabs->count()) % tabs->count();
    } while (page != tabs->currentIndex() &&
             (!tabs->isTabEnabled(page) || !tabs->isTabVisible(page)));
    tabs->setCurrentIndex(page);
}

void Form::Restore() {
    if (isPlaced_) return;
    isPlaced_ = true;
    if (sizing_ == FormSizing::Resizable) {
        LetPagesScroll(*this);
        // By itself, a scrolling page would take only two thirds of the screen.
        if (!testAttribute(Qt::WA_Resized)) resize(sizeHint());
    }
    const bool scrolls = LetFormScroll(*this);
    if (sizing_ == FormSizing::Fixed && layout() && !scrolls)
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    RestoreWindow(*this, sizing_);
}

} // namespace core::forms
