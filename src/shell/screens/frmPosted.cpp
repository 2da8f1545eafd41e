#include "shell/screens/frmPosted.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

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

constexpr int kFirstField = 1; // after the row number
constexpr std::size_t kMostNamed = 10;

/// Makes a panel of the grid below its title, which has the grid's mnemonic, and `beside` next to
/// the title.
QWidget* Titled(const QString& title, Grid& grid, QWidget* beside = nullptr) {
    auto* const part = new QWidget;
    auto* const rows = new QVBoxLayout(part);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* const label = new QLabel(title, part);
    label->setBuddy(&grid);
    auto* const top = new QHBoxLayout;
    top->addWidget(label, 1);
    if (beside != nullptr) top->addWidget(beside);
    rows->addLayout(top);
    rows->addWidget(&grid);
    return part;
}

std::pair<std::uintmax_t, std::filesystem::file_time_type> StateOf(
    const std::filesystem::path& file) {
    std::error_code missing;
    return {std::filesystem::file_size(file, missing),
            std::filesystem::last_write_time(file, missing)};
}

} // namespace

frmPosted::frmPosted(QWidget* parent)
    : Form(parent),
      notice_(core::forms::MakeNotice(*this, QStringLiteral("lblHistoryFault"))),
      earlier_(new QPushButton(tr("&Earlier Runs"), this)),
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
    earlier_->setObjectName(QStringLiteral("cmdEarlier"));
    earlier_->setToolTip(tr("Show the runs of more than a year ago too"));
    earlier_->setAutoDefault(false);
    connect(earlier_, &QPushButton::clicked, this, &frmPosted::ReadEarlierRuns);
    parts->addWidget(Titled(tr("&Runs:"), *runList_, earlier_));
    parts->addWidget(Titled(tr("R&ows of the run:"), *list_));
    parts->setStretchFactor(0, 1);
    parts->setStretchFactor(1, 3);
    parts->setChildrenCollapsible(false);
    rows.addWidget(parts, 1);
    for (Grid* const grid : {runList_, list_})
        core::grid::SetupGrid(*grid);
    connect(runList_, &Grid::SelectionMoved, this, [this] {
        if (!isLoading_) ShowRun();
    });
    connect(runList_, &Grid::RowChosen, this, [this] { list_->setFocus(Qt::OtherFocusReason); });
    connect(list_, &Grid::SelectionMoved, this, [this] {
        if (!isLoading_) ShowSelected();
    });
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
    if (!digest.HistoryFault().empty()) {
        unkept_ = {
            .at = "Since the program was started", .day = platform::Today(), .digest = digest};
        notice_->setText(
            tr("The history of runs can't be kept: %1").arg(ToScreen(digest.HistoryFault())));
    }
    notice_->setVisible(unkept_.has_value());
    since_ = platform::DateAdd(platform::Interval::Year, -1, platform::Today());
    core::forms::Guarded([this] { takenBack_ = ReadTakenRows(); });
    core::forms::Guarded([this] { ReadRuns(); });
    ShowRuns({});
    ShowRun();
    Open();
    list_->setFocus(Qt::OtherFocusReason);
}

void frmPosted::ReadRuns() {
    const std::filesystem::path file = HistoryFile(core::App().Connection);
    read_ = StateOf(file);
    runs_.clear();
    if (unkept_) runs_.push_back(*unkept_);
    RunPage page = ReadHistory(file, since_);
    if (page.runs.empty() && page.hasEarlier) {
        since_ = {};
        page = ReadHistory(file, since_);
    }
    std::ranges::move(page.runs, std::back_inserter(runs_));
    earlier_->setVisible(page.hasEarlier);
    if (page.hasEarlier) return;
    if (!takenBack_) return;
    if (auto taken = RunOfTakenRows(*takenBack_, runs_)) runs_.push_back(std::move(*taken));
}

void frmPosted::ReadEarlierRuns() {
    since_ = {};
    ReadAgain();
    runList_->setFocus(Qt::OtherFocusReason);
}

void frmPosted::ShowRuns(const std::string& selected) {
    const QScopedValueRollback loading(isLoading_, true);
    if (!runs_.empty()) list_->SetEmptyText(tr("Choose a run to see its rows."));
    core::grid::LoadGrid(*runList_, std::make_unique<RunTable>(runs_));
    core::grid::AutoSizeGrid(*runList_, kFirstField, core::grid::Sizing::FillGrid);
    const auto found = std::ranges::find(runs_, selected, &PastRun::name);
    const auto place = found == runs_.end() ? 0 : std::distance(runs_.begin(), found);
    runList_->SelectId(static_cast<std::int32_t>(place) + 1);
}

const PastRun* frmPosted::ShownRun() const {
    const std::int32_t number = runList_->SelectedId();
    if (number < 1 || number > std::ssize(runs_)) return nullptr;
    return &runs_[static_cast<std::size_t>(number - 1)];
}

const RunDigest& frmPosted::ShownDigest() const {
    static const RunDigest nothing;
    const PastRun* const run = ShownRun();
    return run == nullptr ? nothing : run->digest;
}

void frmPosted::ShowRun() {
    ShowRows({1});
}

void frmPosted::ShowRows(const std::vector<std::int32_t>& selected) {
    {
        const QScopedValueRollback loading(isLoading_, true);
        core::grid::LoadGrid(*list_, std::make_unique<DigestTable>(ShownDigest(), takenBack_));
        core::grid::AutoSizeGrid(*list_, kFirstField, core::grid::Sizing::FitGrid);
        if (!selected.empty()) list_->SelectId(selected.front());
        for (const std::int32_t number : selected) {
            list_->selectionModel()->select(
                list_->Model().index(number - 1, kFirstField),
                QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    ShowSelected();
}

void frmPosted::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    const bool isLedger =
        kind == core::kRentLog || kind == core::kMortgageLog || kind == core::kTransaction;
    if (isLedger) Refresh();
    // A run ends with a broadcast of kind kNone.
    if (kind == core::kNone) FollowHistory();
}

/// Another program doesn't broadcast, so its runs are looked up when the window is activated.
void frmPosted::changeEvent(QEvent* event) {
    Form::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || IsBusy()) return;
    try {
        FollowHistory();
    } catch (const std::exception&) {
        // A message would activate the window again; the next command reports the failure instead.
    }
}

void frmPosted::Refresh() {
    takenBack_ = ReadTakenRows();
    const int place = list_->verticalScrollBar()->value();
    ShowRows(list_->SelectedIds());
    list_->verticalScrollBar()->setValue(place);
}

void frmPosted::FollowHistory() {
    if (read_ == StateOf(HistoryFile(core::App().Connection))) return Refresh();
    takenBack_ = ReadTakenRows();
    ReadAgain();
}

void frmPosted::ReadAgain() {
    const std::string run = ShownRun() == nullptr ? std::string() : ShownRun()->name;
    // The records that were skipped come before the rows, and a run that goes on may add some.
    const auto skipped = std::ssize(ShownDigest().Faults());
    std::vector<std::int32_t> selected = list_->SelectedIds();
    {
        // The lists still refer to the runs that are being replaced.
        const QScopedValueRollback loading(isLoading_, true);
        static const std::vector<PastRun> noRuns;
        static const RunDigest nothing;
        core::grid::LoadGrid(*runList_, std::make_unique<RunTable>(noRuns));
        core::grid::LoadGrid(*list_, std::make_unique<DigestTable>(nothing));
    }
    core::forms::Guarded([this] { ReadRuns(); });
    ShowRuns(run);
    // Rows of another run have other numbers, and those taken back are numbered again each time.
    const bool isSameRun = ShownRun() != nullptr && ShownRun()->name == run;
    if (!isSameRun || run == kRunOfTakenRows) return ShowRows({});
    for (std::int32_t& number : selected) {
        if (number > skipped)
            number += static_cast<std::int32_t>(std::ssize(ShownDigest().Faults()) - skipped);
    }
    ShowRows(selected);
}

std::vector<DigestRow> frmPosted::SelectedRows(Rows wanted) const {
    std::vector<DigestRow> rows;
    const DigestTable table(ShownDigest(), takenBack_);
    for (const std::int32_t number : list_->SelectedIds()) {
        const DigestRow* const row = table.PostedRow(number);
        if (row == nullptr) continue;
        if (table.TakenOn(*row).IsSet() == (wanted == Rows::TakenBack)) rows.push_back(*row);
    }
    return rows;
}

void frmPosted::ShowSelected() {
    const bool isReadOnly = core::App().Connection.IsReadOnly();
    const DigestTable table(ShownDigest());
    const std::int32_t number = list_->SelectedId();
    reason_->setText(ToScreen(table.ReasonOf(number)));
    open_->setEnabled(table.RecordOf(number).has_value());
    takeBack_->setEnabled(!isReadOnly && !SelectedRows(Rows::Posted).empty());
    postAgain_->setEnabled(!isReadOnly && !SelectedRows(Rows::TakenBack).empty());
}

void frmPosted::OpenSelected() const {
    OpenRow(list_->SelectedId());
}

void frmPosted::OpenRow(std::int32_t number) const {
    const auto record = DigestTable(ShownDigest()).RecordOf(number);
    if (!record) return;
    core::forms::Guarded([&] { core::EditRecord(record->kind, record->id); });
}

bool frmPosted::Agreed(const std::vector<DigestRow>& rows) const {
    std::string text = rows.size() == 1 ? "Take this row back on purpose?\n"
                                        : "Take these rows back on purpose?\n";
    for (std::size_t i = 0; i < std::min(rows.size(), kMostNamed); ++i)
        text += "\n" + NameOfRow(ShownDigest(), rows[i]);
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
    // Another program may have done it first.
    if (!done) core::forms::Guarded([this] { Refresh(); });
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
    if (!done) core::forms::Guarded([this] { Refresh(); });
}

} // namespace shell::screens
