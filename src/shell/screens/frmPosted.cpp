#include "shell/screens/frmPosted.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include <fmt/core.h>

#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "core/forms/Notice.h"
#include "core/grid/Grid.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "shell/RunTables.h"
#include "shell/TakeBack.h"

namespace shell::screens {

using core::grid::Grid;
using platform::qt::ToScreen;

namespace {

constexpr int kFirstShown = 1; // after the row number
constexpr std::size_t kMostNamed = 10;

/// The grid below its title, which has its mnemonic.
QWidget* Titled(const QString& title, Grid& grid) {
    auto* const part = new QWidget;
    auto* const rows = new QVBoxLayout(part);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* const label = new QLabel(title, part);
    label->setBuddy(&grid);
    rows->addWidget(label);
    rows->addWidget(&grid);
    return part;
}

} // namespace

frmPosted::frmPosted(QWidget* parent)
    : Form(parent),
      notice_(core::forms::MakeNotice(*this, QStringLiteral("lblHistoryFault"))),
      runList_(new Grid(this)),
      list_(new Grid(this)),
      reason_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmPosted"));
    setWindowTitle(tr("Posted While You Were Away"));
    resize(980, 580);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(notice_);
    SetUpGrids(*rows);
    reason_->setObjectName(QStringLiteral("lblReason"));
    reason_->setTextFormat(Qt::PlainText);
    reason_->setWordWrap(true);
    reason_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rows->addWidget(reason_);
    SetUpButtons(*rows);
}

void frmPosted::SetUpGrids(QVBoxLayout& rows) {
    runList_->setObjectName(QStringLiteral("lvwRuns"));
    runList_->setAccessibleName(tr("Runs"));
    runList_->setSelectionMode(QAbstractItemView::SingleSelection);
    runList_->SetEmptyText(tr("No run has posted anything yet."));
    list_->setObjectName(QStringLiteral("lvwPosted"));
    list_->setAccessibleName(tr("Rows of the run"));
    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(Titled(tr("&Runs:"), *runList_));
    parts->addWidget(Titled(tr("R&ows of the run:"), *list_));
    parts->setStretchFactor(0, 1);
    parts->setStretchFactor(1, 3);
    parts->setChildrenCollapsible(false);
    rows.addWidget(parts, 1);
    for (Grid* const grid : {runList_, list_})
        core::grid::SetupGrid(*grid);
    connect(runList_, &Grid::SelectionMoved, this, &frmPosted::ShowRun);
    connect(runList_, &Grid::RowChosen, this, [this] { list_->setFocus(Qt::OtherFocusReason); });
    connect(list_, &Grid::SelectionMoved, this, &frmPosted::ShowSelected);
    connect(list_, &Grid::RowChosen, this, &frmPosted::OpenRow);
}

void frmPosted::SetUpButtons(QVBoxLayout& rows) {
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help, this);
    const auto add = [&](const QString& name, const QString& text, const QString& tip) {
        auto* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setToolTip(tip);
        button->setAutoDefault(false);
        return button;
    };
    open_ = add(QStringLiteral("cmdOpen"), tr("Open Recor&d"),
                tr("Open the record that the row was posted for (Enter)"));
    takeBack_ = add(QStringLiteral("cmdTakeBack"), tr("&Take Back..."),
                    tr("Delete the selected rows, so that no later run posts them again"));
    postAgain_ = add(QStringLiteral("cmdPostAgain"), tr("&Post Again"),
                     tr("Put the selected rows that were taken back into the books again"));
    rows.addWidget(buttons);
    connect(open_, &QPushButton::clicked, this, &frmPosted::OpenSelected);
    connect(takeBack_, &QPushButton::clicked, this, &frmPosted::TakeBackSelected);
    connect(postAgain_, &QPushButton::clicked, this, &frmPosted::PostSelectedAgain);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmPosted::close);
    connect(buttons, &QDialogButtonBox::helpRequested, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmPosted::Setup(const RunDigest& digest) {
    core::forms::Guarded([this] { runs_ = ReadHistory(HistoryFile(core::App().Connection)); });
    if (!digest.HistoryFault().empty()) {
        runs_.insert(
            runs_.begin(),
            {.at = "Since the program was started", .day = platform::Today(), .digest = digest});
        notice_->setText(
            tr("The history of runs can't be kept: %1").arg(ToScreen(digest.HistoryFault())));
    }
    notice_->setVisible(!digest.HistoryFault().empty());
    ShowRuns();
    Open();
    list_->setFocus(Qt::OtherFocusReason);
}

void frmPosted::ShowRuns() {
    if (!runs_.empty()) list_->SetEmptyText(tr("Choose a run to see its rows."));
    core::grid::LoadGrid(*runList_, std::make_unique<RunTable>(runs_));
    core::grid::AutoSizeGrid(*runList_, kFirstShown, core::grid::Sizing::FillGrid);
    runList_->SelectId(1);
    ShowRun();
}

const RunDigest* frmPosted::ShownDigest() const {
    const std::int32_t number = runList_->SelectedId();
    if (number < 1 || number > std::ssize(runs_)) return nullptr;
    return &runs_[static_cast<std::size_t>(number - 1)].digest;
}

void frmPosted::ShowRun() {
    Reload();
    list_->SelectId(1);
    ShowSelected();
}

void frmPosted::Reload() {
    static const RunDigest nothing;
    core::forms::Guarded([this] { takenBack_ = core::ReadTakenBack(); });
    const RunDigest* const digest = ShownDigest();
    core::grid::LoadGrid(
        *list_, std::make_unique<DigestTable>(digest != nullptr ? *digest : nothing, takenBack_));
    core::grid::AutoSizeGrid(*list_, kFirstShown, core::grid::Sizing::FitGrid);
}

void frmPosted::NotifyUpdate(std::int16_t kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    const bool isLedger =
        kind == core::kRentLog || kind == core::kMortgageLog || kind == core::kTransaction;
    if (isLedger) Refresh();
}

void frmPosted::Refresh() {
    const std::int32_t selected = list_->SelectedId();
    Reload();
    list_->SelectId(selected);
    ShowSelected();
}

std::vector<DigestRow> frmPosted::SelectedRows(Rows wanted) const {
    std::vector<DigestRow> rows;
    const RunDigest* const digest = ShownDigest();
    if (digest == nullptr) return rows;
    const DigestTable table(*digest, takenBack_);
    for (const std::int32_t number : list_->SelectedIds()) {
        const DigestRow* const row = table.PostedRow(number);
        if (row == nullptr) continue;
        if (table.TakenOn(*row).IsSet() == (wanted == Rows::TakenBack)) rows.push_back(*row);
    }
    return rows;
}

void frmPosted::ShowSelected() {
    const bool isReadOnly = core::App().Connection.IsReadOnly();
    const RunDigest* const digest = ShownDigest();
    const std::int32_t number = list_->SelectedId();
    const bool hasRow = digest != nullptr && number > 0;
    reason_->setText(hasRow ? ToScreen(DigestTable(*digest).ReasonOf(number)) : QString());
    open_->setEnabled(hasRow && DigestTable(*digest).RecordOf(number).has_value());
    takeBack_->setEnabled(!isReadOnly && !SelectedRows(Rows::Posted).empty());
    postAgain_->setEnabled(!isReadOnly && !SelectedRows(Rows::TakenBack).empty());
}

void frmPosted::OpenSelected() const {
    OpenRow(list_->SelectedId());
}

void frmPosted::OpenRow(std::int32_t number) const {
    const RunDigest* const digest = ShownDigest();
    if (digest == nullptr) return;
    const auto record = DigestTable(*digest).RecordOf(number);
    if (!record) return;
    core::forms::Guarded([&] { core::EditRecord(record->kind, record->id); });
}

bool frmPosted::Agreed(const std::vector<DigestRow>& rows) const {
    std::string text = rows.size() == 1 ? "Take this row back on purpose?\n"
                                        : "Take these rows back on purpose?\n";
    for (std::size_t i = 0; i < std::min(rows.size(), kMostNamed); ++i)
        text += "\n" + NameOfRow(*ShownDigest(), rows[i]);
    if (rows.size() > kMostNamed) text += fmt::format("\nand {} more", rows.size() - kMostNamed);
    text += rows.size() == 1 ? "\n\nIt is deleted, and no later run posts it again."
                             : "\n\nThey are deleted, and no later run posts them again.";
    return platform::TheDialogs().AskYesNo("Confirm Take Back", text, platform::Icon::Question);
}

void frmPosted::TakeBackSelected() {
    const bool done = Perform([this] {
        const std::vector<DigestRow> rows = SelectedRows(Rows::Posted);
        if (!rows.empty() && Agreed(rows)) TakeBack(rows);
    });
    // Another program may have been first.
    if (!done) Refresh();
}

void frmPosted::PostSelectedAgain() {
    const bool done = Perform([this] {
        const std::vector<DigestRow> rows = SelectedRows(Rows::TakenBack);
        if (rows.empty()) return;
        const int deletedBefore = PostAgain(rows);
        if (deletedBefore == 0) return;
        platform::TheDialogs().ShowMessage(
            "Post Again",
            fmt::format("Rows that had been deleted before they were taken back, and so aren't in "
                        "their ledgers now: {}. A run posts them if it charges their days again.",
                        deletedBefore),
            platform::Icon::Information);
    });
    if (!done) Refresh();
}

} // namespace shell::screens
