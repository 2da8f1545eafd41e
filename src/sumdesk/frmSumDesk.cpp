#include "sumdesk/frmSumDesk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>

#include "core/binding/Wiring.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"
#include "ui_frmSumDesk.h"

namespace sumdesk {

frmSumDesk::frmSumDesk(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmSumDesk>()) {
    ui_->setupUi(this);
    ui_->pagSum->setProperty(platform::qt::kTakesEveryPress, true); // two quick presses type 55
    ui_->pagSum->SetCalculator(calculator_);
    ui_->pagLoan->SetCalculator(calculator_);
    ui_->pagDays->SetCalculator(calculator_);
    connect(ui_->pagSum, &CalculatorPage::TapeChanged, this, &frmSumDesk::ShowTape);
    connect(ui_->pagLoan, &LoanPage::TapeChanged, this, &frmSumDesk::ShowTape);
    connect(ui_->pagDays, &DaysPage::TapeChanged, this, &frmSumDesk::ShowTape);
    connect(ui_->cmdCopyTape, &QPushButton::clicked, this, &frmSumDesk::CopyTape);
    connect(ui_->cmdClearTape, &QPushButton::clicked, this, &frmSumDesk::ClearTape);
    for (const auto key : {QKeySequence::Close, QKeySequence::Quit}) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                &QWidget::close);
    }
    // Enter calculates on the page that has the focus; a default button would act on any page.
    for (QPushButton* const button : findChildren<QPushButton*>())
        button->setAutoDefault(false);
    core::binding::WireControls(*this);
    ShowTape();
}

frmSumDesk::~frmSumDesk() = default;

void frmSumDesk::Setup() {
    Open();
    ui_->pagSum->setFocus();
}

void frmSumDesk::reject() {
    const QWidget* const page = ui_->tabPages->currentWidget();
    if (page->isAncestorOf(ui_->pagSum) || page == ui_->pagSum) ui_->pagSum->Clear();
    if (page->isAncestorOf(ui_->pagLoan) || page == ui_->pagLoan) ui_->pagLoan->Clear();
    if (page->isAncestorOf(ui_->pagDays) || page == ui_->pagDays) ui_->pagDays->Clear();
}

void frmSumDesk::ShowTape() {
    const QString text = platform::qt::ToScreen(calculator_.TapeText());
    ui_->txtTape->setPlainText(text);
    ui_->txtTape->verticalScrollBar()->setValue(ui_->txtTape->verticalScrollBar()->maximum());
    ui_->cmdCopyTape->setEnabled(!text.isEmpty());
    ui_->cmdClearTape->setEnabled(!text.isEmpty());
}

void frmSumDesk::CopyTape() {
    QGuiApplication::clipboard()->setText(platform::qt::ToScreen(calculator_.TapeText()));
}

void frmSumDesk::ClearTape() {
    calculator_.ClearTape();
    ShowTape();
    ui_->txtTape->setFocus();
}

} // namespace sumdesk
