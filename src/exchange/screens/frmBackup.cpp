#include "exchange/screens/frmBackup.h"

#include <QCloseEvent>
#include <QIntValidator>
#include <QPushButton>
#include <QTreeWidget>

#include <fmt/core.h>

#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "ui_frmBackup.h"

namespace exchange::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr const char* kIntervals = "Day(s),Week(s),Month(s),Year(s)";
constexpr int kMostPeriods = 9999;

int RowOf(std::int32_t interval, const QComboBox& combo) {
    return interval >= 1 && interval <= combo.count() ? interval - 1 : 0;
}

platform::Icon IconOf(BackupOutcome outcome) {
    switch (outcome) {
        case BackupOutcome::Success:
            return platform::Icon::Information;
        case BackupOutcome::Partial:
            return platform::Icon::Exclamation;
        case BackupOutcome::Failed:
            break;
    }
    return platform::Icon::Critical;
}

} // namespace

frmBackup::frmBackup(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmBackup>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    for (QComboBox* const combo : {ui_->cboBackupInterval, ui_->cboKeepInterval})
        core::binding::FillFromCommaList(*combo, kIntervals);
    for (QLineEdit* const box : {ui_->txtBackupPeriods, ui_->txtKeepPeriods})
        box->setValidator(new QIntValidator(0, kMostPeriods, box));
    ui_->lstResults->header()->setStretchLastSection(false);
    ui_->lstResults->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui_->lstResults->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    Connect();
}

frmBackup::~frmBackup() = default;

void frmBackup::Connect() {
    connect(ui_->cmdBrowse, &QPushButton::clicked, this, [this] { Perform([this] { Browse(); }); });
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Cancel().hide();
    bar.Apply().setText(tr("&Start"));
    bar.Apply().setToolTip(tr("Make a backup now"));
    core::binding::SetTag(bar.Apply(), "START");
    bar.Close().setToolTip(tr("Keep these settings and close (Esc)"));
    bar.Close().setDefault(false);
    bar.Apply().setDefault(true);
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this, &frmBackup::Start);
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmBackup::Setup(std::function<void()> closed) {
    closed_ = std::move(closed);
    Guarded([this] { LoadBackupConfig(config_); });
    ShowConfig();
    AddLine({"Press Start when ready to begin backup", ""});
    Open();
}

void frmBackup::ShowConfig() {
    ui_->txtBackupPath->setText(ToScreen(config_.backupPath));
    ui_->txtBackupPeriods->setText(QString::number(config_.backupPeriods));
    ui_->txtKeepPeriods->setText(QString::number(config_.keepPeriods));
    ui_->cboBackupInterval->setCurrentIndex(RowOf(config_.backupInterval, *ui_->cboBackupInterval));
    ui_->cboKeepInterval->setCurrentIndex(RowOf(config_.keepInterval, *ui_->cboKeepInterval));
    ui_->chkBackupAllFiles->setChecked(config_.backupAllFiles);
    ui_->lblLastBackup->setText(ToScreen(LastBackupText(config_)));
}

/// A setting that the user never made keeps its value from the file.
void frmBackup::ReadConfig() {
    config_.backupPath = FromScreen(ui_->txtBackupPath->text().trimmed());
    if (!config_.backupPath.empty()) {
        config_.backupPath = platform::AddBackslash(config_.backupPath);
    }
    config_.backupPeriods = ui_->txtBackupPeriods->text().toInt();
    config_.keepPeriods = ui_->txtKeepPeriods->text().toInt();
    const auto read = [](std::int32_t& interval, const QComboBox& combo) {
        if (RowOf(interval, combo) != combo.currentIndex()) interval = combo.currentIndex() + 1;
    };
    read(config_.backupInterval, *ui_->cboBackupInterval);
    read(config_.keepInterval, *ui_->cboKeepInterval);
    config_.backupAllFiles = ui_->chkBackupAllFiles->isChecked();
}

std::vector<std::string> frmBackup::Errors() const {
    std::vector<std::string> errors;
    if (ui_->txtBackupPeriods->text().isEmpty()) {
        errors.emplace_back("The time between backups must be given.");
    }
    if (ui_->txtKeepPeriods->text().isEmpty()) {
        errors.emplace_back("The time that backups are kept must be given.");
    }
    if (config_.backupPath.empty()) errors.emplace_back("A folder for backups must be given.");
    if (config_.backupPath.size() > kBackupPathSize) {
        errors.push_back(fmt::format("The path of the folder must not be longer than {} letters.",
                                     kBackupPathSize));
    }
    return errors;
}

void frmBackup::Browse() {
    const auto folder = platform::TheChoosers().Folder(
        "Select directory for backups to be written to:", FromScreen(ui_->txtBackupPath->text()));
    if (folder) ui_->txtBackupPath->setText(ToScreen(platform::AddBackslash(*folder)));
}

bool frmBackup::MayClose() {
    ReadConfig();
    return core::forms::ShowErrorRoll(Errors());
}

/// If the configuration can't be saved, the screen closes and the program ends all the same.
void frmBackup::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    if (!event->isAccepted()) return;
    ReadConfig();
    if (Errors().empty()) Guarded([this] { SaveBackupConfig(config_); });
    if (closed_) std::exchange(closed_, {})();
}

/// Completes the line of a running step, or adds a line.
void frmBackup::AddLine(const BackupLine& line) {
    const QString action = ToScreen(line.action);
    QTreeWidgetItem* row = nullptr;
    for (QTreeWidgetItem* const shown : ui_->lstResults->findItems(action, Qt::MatchExactly))
        if (shown->text(1).isEmpty()) row = shown;
    if (row == nullptr) row = new QTreeWidgetItem(ui_->lstResults, {action});
    row->setText(1, ToScreen(line.result));
    row->setToolTip(0, action);
    ui_->lstResults->scrollToItem(row);
}

bool frmBackup::AgreedToKeepNothing() const {
    if (ContainersLeft(config_) > 0) return true;
    return platform::TheDialogs().AskYesNo(
        "Confirm Backup",
        fmt::format("Backups are kept for {} {}, so that none would be left at the end, not even "
                    "the new one.\n\nDo you wish to continue?",
                    config_.keepPeriods, FromScreen(ui_->cboKeepInterval->currentText())),
        platform::Icon::Exclamation);
}

void frmBackup::Start() {
    const auto entries = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    Perform([&] {
        ReadConfig();
        if (!core::forms::ShowErrorRoll(Errors()) || !AgreedToKeepNothing()) return;
        for (QWidget* const control : entries)
            if (control != ui_->lstResults) control->setEnabled(false);
        Run();
    });
    if (IsBusy()) return; // with the backup that runs
    for (QWidget* const control : entries)
        control->setEnabled(true);
}

void frmBackup::Run() {
    ui_->lstResults->clear();
    const BackupReport report =
        RunBackup(config_, {}, [this](const BackupLine& line) { AddLine(line); });
    ui_->lblLastBackup->setText(ToScreen(LastBackupText(config_)));
    platform::TheDialogs().ShowMessage("Backup", report.text, IconOf(report.outcome));
}

} // namespace exchange::screens
