#include "documents/screens/frmDocMgmt.h"

#include <QHeaderView>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTableWidget>

#include "core/Configuration.h"
#include "core/RecordKinds.h"
#include "core/Settings.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "documents/DocList.h"
#include "documents/DocOptions.h"
#include "documents/ShippedDocs.h"
#include "documents/TemplateCheck.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "removal/DeleteRecord.h"
#include "ui_frmDocMgmt.h"

namespace documents::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Kestrom\Preferences)";
constexpr std::string_view kShowPath = "DocMgmtShowPath";
constexpr int kName = 0;
constexpr int kPath = 1;
constexpr int kFirstFlag = 2;

QTableWidgetItem* TextCell(const std::string& text) {
    auto* const cell = new QTableWidgetItem(ToScreen(text));
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    cell->setToolTip(cell->text());
    return cell;
}

QTableWidgetItem* FlagCell(bool isOn) {
    auto* const cell = new QTableWidgetItem;
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    cell->setCheckState(isOn ? Qt::Checked : Qt::Unchecked);
    return cell;
}

QString Joined(const std::vector<std::string>& names) {
    QStringList joined;
    for (const std::string& name : names)
        joined += ToScreen("<<" + name + ">>");
    return joined.join(QStringLiteral(", "));
}

QString FaultText(const DocRow& doc) {
    if (!platform::FileExists(doc.letter.filePath))
        return QStringLiteral("The file of this template is missing.");
    std::vector<core::RecordKind> kinds;
    for (std::size_t i = 0; i < kDocFlags.size(); ++i) {
        if (doc.flags[i]) kinds.push_back(kDocFlags[i].kind);
    }
    if (kinds.empty())
        return QStringLiteral("Tick the kinds of records that this template is offered for.");
    const TemplateFaults faults =
        CheckTemplate(doc.letter.filePath, platform::ReadWholeFile(doc.letter.filePath), kinds);
    QStringList lines;
    if (!faults.unknown.empty())
        lines += QStringLiteral("Not filled by any record of these kinds: %1")
                     .arg(Joined(faults.unknown));
    if (!faults.torn.empty())
        lines += QStringLiteral("Broken up by formatting (type them again in one go): %1")
                     .arg(Joined(faults.torn));
    return lines.isEmpty() ? QStringLiteral("Every tag of this template can be filled.")
                           : lines.join(QLatin1Char('\n'));
}

} // namespace

frmDocMgmt::frmDocMgmt(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmDocMgmt>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    QStringList captions{QStringLiteral("Description"), QStringLiteral("File")};
    for (const DocFlag& flag : kDocFlags)
        captions += ToScreen(flag.caption);
    ui_->grd->setColumnCount(static_cast<int>(captions.size()));
    ui_->grd->setHorizontalHeaderLabels(captions);
    for (const int text : {kName, kPath})
        ui_->grd->horizontalHeaderItem(text)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui_->grd->verticalHeader()->hide();
    ui_->grd->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->cmdAction->Apply().hide();
    ui_->cmdAction->Cancel().hide();
    Connect();
    ConnectOptions();
}

frmDocMgmt::~frmDocMgmt() = default;

void frmDocMgmt::Connect() {
    const auto on = [this](QPushButton* button, void (frmDocMgmt::*work)()) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, work] { Perform([&] { (this->*work)(); }); });
    };
    on(ui_->cmdAdd, &frmDocMgmt::Add);
    on(ui_->cmdShipped, &frmDocMgmt::AddShipped);
    on(ui_->cmdEdit, &frmDocMgmt::Edit);
    on(ui_->cmdDelete, &frmDocMgmt::Delete);
    connect(ui_->grd, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        if (!isFilling_) Guarded([&] { FlagTicked(*item); });
    });
    connect(ui_->grd, &QTableWidget::itemSelectionChanged, this,
            [this] { Guarded([this] { ShowSelected(); }); });
    connect(ui_->grd, &QTableWidget::cellDoubleClicked, this, [this](int, int column) {
        if (column < kFirstFlag) Guarded([this] { Edit(); });
    });
    connect(ui_->chkShowPath, &QCheckBox::toggled, this, [this](bool isOn) {
        ShowPaths(isOn);
        core::SetRegFlag(kKey, kShowPath, isOn);
    });
    connect(ui_->cmdAction, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(ui_->cmdAction, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmDocMgmt::ConnectOptions() {
    connect(ui_->cmdFolder, &QPushButton::clicked, this, [this] {
        const auto folder = platform::TheChoosers().Folder(
            "Select Document Directory", FromScreen(ui_->txtDocDirectory->text()));
        if (!folder) return;
        ui_->txtDocDirectory->setText(ToScreen(*folder));
        Guarded([this] { SaveOptions(); });
    });
    connect(ui_->chkAssociateDocs, &QCheckBox::clicked, this,
            [this] { Guarded([this] { SaveOptions(); }); });
}

void frmDocMgmt::Setup() {
    const bool showsPath = core::GetRegFlag(kKey, kShowPath, false);
    ui_->chkShowPath->setChecked(showsPath);
    ShowPaths(showsPath);
    Guarded([this] { Fill(); });
    LoadOptions();
    Open();
    ui_->grd->setFocus();
    const QTableWidgetItem* const first = ui_->grd->item(0, kName); // null if nothing could be read
    if (first != nullptr && first->data(Qt::UserRole).toInt() != 0)
        ui_->grd->setCurrentCell(0, kName);
}

/// The descriptions take the remaining width, which long paths need for themselves.
void frmDocMgmt::ShowPaths(bool isOn) {
    ui_->grd->setColumnHidden(kPath, !isOn);
    ui_->grd->horizontalHeader()->setSectionResizeMode(
        kName, isOn ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
}

void frmDocMgmt::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    if (kind == core::kDocument) Fill();
    if (kind == core::kConfiguration) LoadOptions();
}

void frmDocMgmt::Fill() {
    const QScopedValueRollback filling(isFilling_, true);
    const std::int32_t selected = SelectedDoc();
    const std::vector<DocRow> docs = AllDocs();
    ui_->grd->clearSpans();
    ui_->grd->setRowCount(static_cast<int>(docs.size()));
    for (int row = 0; row < ui_->grd->rowCount(); ++row) {
        const DocRow& doc = docs[static_cast<std::size_t>(row)];
        auto* const name = TextCell(doc.letter.description);
        name->setData(Qt::UserRole, doc.letter.id);
        ui_->grd->setItem(row, kName, name);
        ui_->grd->setItem(row, kPath, TextCell(doc.letter.filePath));
        for (std::size_t i = 0; i < kDocFlags.size(); ++i)
            ui_->grd->setItem(row, kFirstFlag + static_cast<int>(i), FlagCell(doc.flags[i]));
        if (doc.letter.id == selected) ui_->grd->setCurrentCell(row, kName);
    }
    if (docs.empty()) {
        ui_->grd->setRowCount(1);
        ui_->grd->setItem(0, kName, TextCell("No Files Found."));
        ui_->grd->setSpan(0, 0, 1, ui_->grd->columnCount());
    }
    ShowSelected();
    ShowShipped();
}

std::int32_t frmDocMgmt::SelectedDoc() const {
    const QTableWidgetItem* const name =
        ui_->grd->currentRow() < 0 ? nullptr : ui_->grd->item(ui_->grd->currentRow(), kName);
    return name != nullptr ? name->data(Qt::UserRole).toInt() : 0;
}

void frmDocMgmt::ShowSelected() {
    const std::int32_t id = SelectedDoc();
    for (QPushButton* const button : {ui_->cmdEdit, ui_->cmdDelete}) {
        button->setEnabled(id != 0);
        button->setToolTip(id != 0 ? QString() : QStringLiteral("Select a template first"));
    }
    ui_->lblFaults->clear();
    for (const DocRow& doc : AllDocs()) {
        if (doc.letter.id == id) ui_->lblFaults->setText(FaultText(doc));
    }
}

void frmDocMgmt::ShowShipped() {
    ui_->cmdShipped->setVisible(!UnlistedDocs(ShippedDocsFolder()).empty());
}

void frmDocMgmt::FlagTicked(const QTableWidgetItem& item) {
    const QTableWidgetItem* const name = ui_->grd->item(item.row(), kName);
    if (item.column() < kFirstFlag || name == nullptr) return;
    SetDocFlag(name->data(Qt::UserRole).toInt(),
               static_cast<std::size_t>(item.column() - kFirstFlag),
               item.checkState() == Qt::Checked);
}

void frmDocMgmt::Add() {
    const auto path = platform::TheChoosers().OpenFile(
        {"Select File",
         core::Config().DocDirectory,
         {{"Rich Text File", "*.rtf"}, {"Text File", "*.txt"}, {"All Files", "*.*"}}});
    if (path) AddDoc(*path);
}

void frmDocMgmt::AddShipped() {
    AddShippedDocs(ShippedDocsFolder());
}

void frmDocMgmt::Edit() {
    const auto letter = FindDocTemplate(SelectedDoc());
    if (!letter || platform::TheDesktop().OpenDocument(letter->filePath)) return;
    platform::TheDialogs().ShowMessage(
        "Document Error",
        platform::FileExists(letter->filePath)
            ? "No program opens this kind of file.\n" + letter->filePath
            : "The file of this template is missing.\n" + letter->filePath,
        platform::Icon::Exclamation);
}

void frmDocMgmt::Delete() {
    removal::DeleteRecord(core::kDocument, SelectedDoc());
}

void frmDocMgmt::LoadOptions() {
    ui_->txtDocDirectory->setText(ToScreen(core::Config().DocDirectory));
    ui_->chkAssociateDocs->setChecked(core::Config().AssociateDocs);
}

void frmDocMgmt::SaveOptions() {
    SaveDocOptions({FromScreen(ui_->txtDocDirectory->text()), ui_->chkAssociateDocs->isChecked()});
}

} // namespace documents::screens
