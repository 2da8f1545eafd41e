#include "exchange/screens/frmCheck.h"

#include <QPushButton>

#include "core/Globals.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "ui_frmCheck.h"

namespace exchange::screens {

using platform::qt::ToScreen;

frmCheck::frmCheck(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmCheck>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    QHeaderView& head = *ui_->lstFindings->header();
    head.setStretchLastSection(false);
    head.setSectionResizeMode(0, QHeaderView::ResizeToContents);
    head.setSectionResizeMode(1, QHeaderView::Stretch);
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Cancel().hide();
    bar.Apply().setText(tr("Check &Again"));
    bar.Apply().setToolTip(tr("Check everything once more"));
    core::binding::SetTag(bar.Apply(), "START");
    bar.Close().setToolTip(tr("Close (Esc)"));
    connect(
        ui_->lstFindings, &QTreeWidget::currentItemChanged, this,
        [this](const QTreeWidgetItem* row) {
            ui_->txtFinding->setPlainText(row ? row->data(1, Qt::UserRole).toString() : QString());
        });
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this, &frmCheck::Check);
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

frmCheck::~frmCheck() = default;

void frmCheck::Setup() {
    Open();
    Check();
}

void frmCheck::Check() {
    Perform([this] {
        ui_->cmdAction->setEnabled(false);
        ui_->lstFindings->clear();
        const auto progress = [this](std::string_view part, int number, int of) {
            ui_->lblSummary->setText(tr("Checking: %1").arg(ToScreen(std::string(part))));
            ui_->prgCheck->setRange(0, of);
            ui_->prgCheck->setValue(number);
        };
        Show(CheckBooks(core::App().Connection, progress));
    });
    if (IsBusy()) return;
    ui_->prgCheck->setValue(ui_->prgCheck->maximum());
    ui_->cmdAction->setEnabled(true);
}

void frmCheck::Show(const std::vector<Finding>& findings) {
    ui_->lblSummary->setText(ToScreen(CheckSummary(findings)));
    for (const Finding& finding : findings) {
        const bool isFault = finding.severity == Severity::Fault;
        auto* const row = new QTreeWidgetItem(
            ui_->lstFindings, {isFault ? tr("Fault") : tr("Note"), ToScreen(finding.what)});
        row->setData(1, Qt::UserRole, ToScreen(finding.what + ".\n" + finding.advice));
        if (isFault) row->setIcon(0, platform::qt::LoadIcon(QStringLiteral("warning")));
        row->setToolTip(1, row->text(1));
    }
    ui_->lstFindings->setCurrentItem(ui_->lstFindings->topLevelItem(0));
}

} // namespace exchange::screens
