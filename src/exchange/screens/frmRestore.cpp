#include "exchange/screens/frmRestore.h"

#include <QLocale>
#include <QPushButton>
#include <algorithm>

#include <fmt/core.h>

#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "ui_frmRestore.h"

namespace exchange::screens {

namespace fs = std::filesystem;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

QString KindText(std::int16_t type) {
    switch (static_cast<FileType>(type)) {
        case FileType::Database:
            return QObject::tr("Database");
        case FileType::Document:
            return QObject::tr("Document template");
        case FileType::FileObject:
            return QObject::tr("Attached file");
    }
    return {};
}

QTreeWidgetItem* MakeRow(const ContainerEntry& entry) {
    const EntryHeader& header = entry.header;
    auto* const row = new QTreeWidgetItem(
        {ToScreen(header.filePath), KindText(header.fileType),
         entry.state == EntryState::Damaged
             ? QString()
             : QLocale(QLocale::English, QLocale::UnitedStates).toString(header.fileSize),
         ToScreen(header.fileDate), ToScreen(std::string(StateWord(entry.state)))});
    row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    row->setToolTip(0, row->text(0));
    return row;
}

/// Returns the path of a new folder beside the backup.
fs::path FreeFolderFor(const fs::path& container) {
    const fs::path wanted = container.parent_path() / (container.stem().string() + " restored");
    fs::path folder = wanted;
    std::error_code ignored;
    for (int number = 2; fs::exists(folder, ignored); ++number)
        folder = wanted.string() + " " + std::to_string(number);
    return folder;
}

std::string SummaryOf(const std::vector<ContainerEntry>& entries) {
    const auto whole = static_cast<std::size_t>(std::ranges::count_if(
        entries, [](const ContainerEntry& entry) { return entry.state == EntryState::Whole; }));
    if (whole == entries.size()) {
        return fmt::format("The backup is whole: {} {}.", whole, whole == 1 ? "file" : "files");
    }
    return fmt::format(
        "The backup ends too early: {} of its files {} whole and can be restored, the last one "
        "can't.",
        whole, whole == 1 ? "is" : "are");
}

} // namespace

frmRestore::frmRestore(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmRestore>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    QHeaderView& head = *ui_->lstEntries->header();
    head.setStretchLastSection(false);
    head.setSectionResizeMode(QHeaderView::ResizeToContents);
    head.setSectionResizeMode(0, QHeaderView::Stretch);
    ui_->lstEntries->setTextElideMode(Qt::ElideLeft);
    ui_->lstEntries->headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    Connect();
}

frmRestore::~frmRestore() = default;

void frmRestore::Connect() {
    connect(ui_->cmdContainer, &QPushButton::clicked, this,
            [this] { Perform([this] { ChooseContainer(); }); });
    connect(ui_->cmdFolder, &QPushButton::clicked, this,
            [this] { Perform([this] { ChooseFolder(); }); });
    connect(ui_->txtContainer, &QLineEdit::editingFinished, this, &frmRestore::ShowEntries);
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Cancel().hide();
    bar.Apply().setText(tr("Re&store"));
    bar.Apply().setToolTip(tr("Extract the backup into the new folder and check its database"));
    bar.Apply().setEnabled(false);
    core::binding::SetTag(bar.Apply(), "RESTORE");
    bar.Close().setToolTip(tr("Close (Esc)"));
    bar.Close().setDefault(false);
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this, &frmRestore::Restore);
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmRestore::Setup(OpenBooks open) {
    open_ = std::move(open);
    Open();
}

void frmRestore::ChooseContainer() {
    const auto file =
        platform::TheChoosers().OpenFile({"Select Backup",
                                          FromScreen(ui_->txtContainer->text()),
                                          {{"Backups", "*.vbk"}, {"All Files", "*.*"}}});
    if (!file) return;
    ui_->txtContainer->setText(ToScreen(*file));
    ShowEntries();
}

void frmRestore::ChooseFolder() {
    const auto folder = platform::TheChoosers().Folder("Select an empty folder to restore into",
                                                       FromScreen(ui_->txtFolder->text()));
    if (folder) ui_->txtFolder->setText(ToScreen(*folder));
}

void frmRestore::ShowEntries() {
    const fs::path container = FromScreen(ui_->txtContainer->text());
    ui_->lstEntries->clear();
    ui_->cmdAction->Apply().setEnabled(false);
    if (container.empty()) return;
    try {
        const std::vector<ContainerEntry> entries = ListContainer(container);
        for (const ContainerEntry& entry : entries)
            ui_->lstEntries->addTopLevelItem(MakeRow(entry));
        ui_->lblSummary->setText(ToScreen(SummaryOf(entries)));
        ui_->cmdAction->Apply().setEnabled(true);
    } catch (const platform::Error& failure) {
        ui_->lblSummary->setText(ToScreen(std::string(failure.what()) + "."));
    }
    if (ui_->txtFolder->text().isEmpty() || ui_->txtFolder->text() == proposed_) {
        proposed_ = ToScreen(FreeFolderFor(container).string());
        ui_->txtFolder->setText(proposed_);
    }
}

void frmRestore::Restore() {
    Perform([this] {
        if (ui_->txtFolder->text().trimmed().isEmpty()) {
            core::forms::ShowErrorRoll({"A folder to restore into must be given."});
            return;
        }
        ui_->cmdAction->setEnabled(false);
        Run();
    });
    if (!IsBusy()) ui_->cmdAction->setEnabled(true);
}

void frmRestore::Run() {
    const RestoreReport report = RestoreContainer(
        FromScreen(ui_->txtContainer->text()),
        fs::absolute(FromScreen(ui_->txtFolder->text().trimmed())),
        ui_->chkDatabaseOnly->isChecked() ? RestoreScope::DatabaseOnly : RestoreScope::Everything,
        [this](const RestoredFile& file) {
            ui_->lblSummary->setText(ToScreen("Restoring " + file.filePath));
        });
    Tell(report);
}

void frmRestore::Tell(const RestoreReport& report) {
    std::string text = fmt::format("The backup was restored into {}", report.folder.string());
    const auto missing = std::ranges::find_if(
        report.files, [](const RestoredFile& file) { return !file.reason.empty(); });
    if (missing != report.files.end()) {
        text += fmt::format("\nNot every file could be restored. {}: {}", missing->filePath,
                            missing->reason);
    }
    if (!report.hasDatabase) {
        text += "\nThere is no whole database in it.";
    } else if (!report.faults.empty()) {
        text += "\nIts database is damaged: " + report.faults.front();
    } else {
        text += "\nIts database was checked and is sound.";
    }
    ui_->lblSummary->setText(ToScreen(text));
    const bool canOpen = report.hasDatabase && report.faults.empty() && open_;
    if (!canOpen) {
        platform::TheDialogs().ShowMessage(
            "Restore", text,
            report.IsWhole() ? platform::Icon::Information : platform::Icon::Exclamation);
        return;
    }
    text += "\n\nDo you want to open it now, to look at it? Nothing is changed by that.";
    if (platform::TheDialogs().AskYesNo("Restore", text, platform::Icon::Question)) {
        open_(report.folder);
    }
}

} // namespace exchange::screens
