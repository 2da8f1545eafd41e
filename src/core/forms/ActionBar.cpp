#include "core/forms/ActionBar.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "core/binding/Tags.h"

namespace core::forms {

namespace {

QPushButton* MakeButton(const QString& text, const QString& hint, const QString& name,
                        std::string_view tag, QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(hint);
    button->setAutoDefault(false);
    binding::SetTag(*button, tag);
    return button;
}

} // namespace

ActionBar::ActionBar(QWidget* parent)
    : QWidget(parent),
      help_(MakeButton(tr("&Help"), tr("How this screen is used (F1)"), QStringLiteral("cmdHelp"),
                       "HELP", this)),
      cancel_(MakeButton(tr("Cancel"), tr("Close without saving (Esc)"),
                         QStringLiteral("cmdCancel"), "CANCEL", this)),
      apply_(
          MakeButton(tr("&Apply"), tr("Save and stay"), QStringLiteral("cmdApply"), "APPLY", this)),
      close_(MakeButton(tr("&Close"), tr("Save and close (Enter)"), QStringLiteral("cmdClose"),
                        "CLOSE", this)) {
    close_->setDefault(true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(help_);
    row->addStretch();
    row->addWidget(cancel_);
    row->addWidget(apply_);
    row->addWidget(close_);
    connect(help_, &QPushButton::clicked, this, &ActionBar::HelpClicked);
    connect(cancel_, &QPushButton::clicked, this, &ActionBar::CancelClicked);
    connect(apply_, &QPushButton::clicked, this, &ActionBar::ApplyClicked);
    connect(close_, &QPushButton::clicked, this, &ActionBar::CloseClicked);
}

} // namespace core::forms
