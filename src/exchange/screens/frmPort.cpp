#include "exchange/screens/frmPort.h"

#include <QMouseEvent>
#include <QPushButton>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/Session.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "ui_frmPort.h"

namespace exchange::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

bool Agreed(const std::string& warning) {
    return platform::TheDialogs().AskYesNo(
        "Confirm Import", warning + "\n\nDo you wish to continue?", platform::Icon::Question);
}

bool AgreedToReplace() {
    return Agreed(
        "The rows of each table in the file replace those in the database. A copy of the database "
        "is kept.");
}

bool AgreedToAddAgain(std::int64_t known, std::int64_t records) {
    return Agreed(fmt::format(
        "{} of the {} records in this file {} in the database already. If they are imported again, "
        "the database will hold them twice.",
        known, records, known == 1 ? "is" : "are"));
}

} // namespace

frmPort::frmPort(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmPort>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    ui_->optAppend->setChecked(true);
    core::binding::SetTag(*ui_->cmdSelectAll, "SELALL");
    core::binding::SetTag(*ui_->cmdSelectNone, "SELNONE");
    core::binding::SetTag(*ui_->cmdTest, "TEST");
    Connect();
}

frmPort::~frmPort() = default;

void frmPort::Connect() {
    ui_->txtImportFile->installEventFilter(this);
    connect(ui_->cmdSelectAll, &QPushButton::clicked, ui_->lstTables, &QListWidget::selectAll);
    connect(ui_->cmdSelectNone, &QPushButton::clicked, ui_->lstTables,
            &QListWidget::clearSelection);
    connect(ui_->cmdBrowse, &QPushButton::clicked, this,
            [this] { Perform([this] { ChooseFile(); }); });
    connect(ui_->cmdTest, &QPushButton::clicked, this, [this] { Import(ImportMode::Test); });
    connect(ui_->tabPort, &QTabWidget::currentChanged, this, &frmPort::TabChanged);
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Cancel().hide();
    bar.Close().setToolTip(tr("Close (Esc)"));
    bar.Close().setDefault(false);
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this, &frmPort::Execute);
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmPort::Setup() {
    ui_->tabPort->setCurrentIndex(0);
    TabChanged();
    core::forms::Guarded([this] { ShowTables(); });
    Open();
}

void frmPort::ShowTables() {
    const core::TableTotals totals = core::ListTables(core::App().Connection);
    ui_->lstTables->clear();
    for (const std::string& name : totals.names)
        ui_->lstTables->addItem(ToScreen(name));
    ui_->txtStatus->setPlainText(
        tr("Status: Database configuration read.\nTotal Tables = %1\nTotal Fields = %2\n"
           "Total Records = %3\n")
            .arg(totals.tables)
            .arg(totals.fields)
            .arg(totals.records));
}

void frmPort::TabChanged() {
    const bool isExport = ui_->tabPort->currentIndex() == 0;
    QPushButton& execute = ui_->cmdAction->Apply();
    core::binding::SetTag(execute, isExport ? "EXPORT" : "IMPORT");
    execute.setText(isExport ? tr("Ex&port") : tr("Im&port"));
    execute.setToolTip(isExport ? tr("Choose a file and write the selected tables to it")
                                : tr("Check the file, then write its records to the database"));
}

/// A click into the box chooses a file.
bool frmPort::eventFilter(QObject* watched, QEvent* event) {
    const bool isClick = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (watched == ui_->txtImportFile && isClick) {
        Perform([this] { ChooseFile(); });
        return true;
    }
    return Form::eventFilter(watched, event);
}

void frmPort::ChooseFile() {
    const auto file = platform::TheChoosers().OpenFile(
        {"Select Import File",
         FromScreen(ui_->txtImportFile->text()),
         {{"Database Export File", "*.csv"}, {"All Files", "*.*"}}});
    if (file) ui_->txtImportFile->setText(ToScreen(*file));
}

void frmPort::Run(const std::function<void()>& work) {
    const auto enable = [this](bool on) {
        ui_->tabPort->setEnabled(on);
        ui_->cmdAction->setEnabled(on);
    };
    Perform([&] {
        enable(false);
        work();
    });
    if (!IsBusy()) enable(true);
}

// No window messages are processed while records are written, so status and progress are painted
// here.
PortWatcher frmPort::Watcher() {
    return {.status =
                [this](std::string_view lines) {
                    ui_->txtStatus->setPlainText(ToScreen(std::string(lines)));
                    ui_->txtStatus->repaint();
                },
            .progress =
                [this](int percent) {
                    if (ui_->prgPort->value() == percent) return;
                    ui_->prgPort->setValue(percent);
                    ui_->prgPort->repaint();
                },
            .addAgain = AgreedToAddAgain};
}

void frmPort::Execute() {
    if (ui_->tabPort->currentIndex() == 0) {
        Run([this] { Export(); });
    } else {
        Import(ImportMode::Write);
    }
}

/// Exports the tables in the order of the list, not of the selection.
void frmPort::Export() {
    std::vector<std::string> tables;
    for (int row = 0; row < ui_->lstTables->count(); ++row) {
        const QListWidgetItem& item = *ui_->lstTables->item(row);
        if (item.isSelected()) tables.push_back(FromScreen(item.text()));
    }
    ExportDatabase(tables, Watcher());
}

void frmPort::Import(ImportMode mode) {
    Run([this, mode] {
        const std::string file = FromScreen(ui_->txtImportFile->text());
        const ImportRows rows =
            ui_->optOverwrite->isChecked() ? ImportRows::Overwrite : ImportRows::Append;
        if (mode == ImportMode::Write && rows == ImportRows::Overwrite && !AgreedToReplace()) {
            return;
        }
        ImportDatabase(file, mode, rows, ImportMessages::Show, Watcher());
    });
}

} // namespace exchange::screens
