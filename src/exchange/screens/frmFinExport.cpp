#include "exchange/screens/frmFinExport.h"

#include <QCloseEvent>
#include <QPushButton>

#include "core/RecordKinds.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "core/grid/RowDelegate.h"
#include "exchange/FinExportLines.h"
#include "exchange/screens/AccountList.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Paths.h"
#include "ui_frmFinExport.h"

namespace exchange::screens {

using core::forms::Guarded;
using platform::TheDialogs;

namespace {

constexpr std::string_view kIifNote =
    "If you do not already have matching bank account names set up, Quickbooks will create them "
    "for you.\n"
    "\n"
    "If you do not have matching income and expense accounts set up these will also be created "
    "for you,\n"
    "however they will set up as 'Bank' type accounts. Once imported into Quickbooks, you will "
    "need to go to\n"
    "the 'Chart of Accounts' and edit each account type to be either Income or Expense.";

constexpr qsizetype kWrittenOut = 10; // mm/dd/yyyy

void Select(const std::array<QRadioButton*, 3>& choices, int chosen) {
    choices.at(static_cast<std::size_t>(chosen))->setChecked(true);
}

int Selected(const std::array<QRadioButton*, 3>& choices) {
    int chosen = 0;
    while (chosen < 2 && !choices.at(static_cast<std::size_t>(chosen))->isChecked())
        ++chosen;
    return chosen;
}

/// Returns the path under which the export is remembered.
std::string WithoutExtension(const std::filesystem::path& file) {
    return (file.parent_path() / file.stem()).string();
}

} // namespace

frmFinExport::frmFinExport(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmFinExport>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    types_ = {ui_->optFinType0, ui_->optFinType1, ui_->optFinType2};
    ranges_ = {ui_->optTransRange0, ui_->optTransRange1, ui_->optTransRange2};
    Connect();
}

frmFinExport::~frmFinExport() = default;

void frmFinExport::Connect() {
    auto* const all = new QAction(tr("Check &All"), this);
    all->setObjectName(QStringLiteral("mnuCheckAll"));
    auto* const none = new QAction(tr("Check &None"), this);
    none->setObjectName(QStringLiteral("mnuCheckNone"));
    ui_->lstAccounts->addActions({all, none});
    connect(all, &QAction::triggered, this, [this] { CheckAll(*ui_->lstAccounts, Qt::Checked); });
    connect(none, &QAction::triggered, this,
            [this] { CheckAll(*ui_->lstAccounts, Qt::Unchecked); });
    for (QRadioButton* const range : ranges_)
        connect(range, &QRadioButton::toggled, this, [this](bool on) {
            if (on) RangeChanged();
        });
    connect(ui_->chkShowCount, &QCheckBox::toggled, this, &frmFinExport::RangeChanged);
    ui_->lstAccounts->setItemDelegate(new core::grid::RowDelegate(this));
    for (auto* const box : {ui_->dpTransStart, ui_->dpTransEnd}) {
        box->setMinimumWidth(box->minimumSizeHint().width() +
                             box->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")));
        connect(box, &QLineEdit::editingFinished, this, [this, box] { DayEntered(*box); });
        // A date picked from the calendar is already complete; one that is being typed isn't.
        connect(box, &QLineEdit::textChanged, this, [this, box](const QString& text) {
            if (!box->hasFocus() && text.size() == kWrittenOut) DayEntered(*box);
        });
    }
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Cancel().hide();
    bar.Apply().setText(tr("E&xport"));
    bar.Apply().setToolTip(tr("Choose a file and export the checked accounts to it"));
    core::binding::SetTag(bar.Apply(), "EXPORT");
    bar.Close().setToolTip(tr("Close (Esc)"));
    bar.Close().setDefault(false);
    bar.Apply().setDefault(true);
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this,
            [this] { Perform([this] { Export(); }); });
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmFinExport::Setup() {
    settings_ = LoadFinExportSettings();
    ShowSettings();
    loading_ = false;
    Guarded([this] { FillList(); });
    Open();
}

void frmFinExport::ShowSettings() {
    Select(types_, static_cast<int>(settings_.finType));
    Select(ranges_, static_cast<int>(settings_.range.range));
    ui_->dpTransStart->SetDay(settings_.range.start);
    ui_->dpTransEnd->SetDay(settings_.range.end);
    ui_->chkMarkExported->setChecked(settings_.markExported);
    ui_->chkShowCount->setChecked(settings_.showCount);
    ui_->chkLimitLength->setChecked(settings_.limitLength);
    ui_->lstAccounts->header()->setStretchLastSection(false);
    ui_->lstAccounts->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui_->lstAccounts->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    ui_->lstAccounts->sortByColumn(settings_.sortedColumn == 1 ? 1 : 0, settings_.sortDescending
                                                                            ? Qt::DescendingOrder
                                                                            : Qt::AscendingOrder);
}

/// The settings' dates are stored when they are entered.
void frmFinExport::ReadSettings() {
    settings_.finType = static_cast<FinType>(Selected(types_));
    settings_.range.range = static_cast<TransRange>(Selected(ranges_));
    settings_.markExported = ui_->chkMarkExported->isChecked();
    settings_.showCount = ui_->chkShowCount->isChecked();
    settings_.limitLength = ui_->chkLimitLength->isChecked();
    settings_.sortedColumn = ui_->lstAccounts->sortColumn();
    settings_.sortDescending =
        ui_->lstAccounts->header()->sortIndicatorOrder() == Qt::DescendingOrder;
}

void frmFinExport::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                std::int32_t /*id*/) {
    if (kind == core::kAccount || kind == core::kTransaction) FillList();
}

void frmFinExport::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    if (!event->isAccepted()) return;
    ReadSettings();
    Guarded([this] { SaveFinExportSettings(settings_); });
}

void frmFinExport::FillList() {
    FillAccounts(*ui_->lstAccounts);
    RangeChanged();
}

void frmFinExport::RangeChanged() {
    // While the settings are loaded, later controls don't show theirs yet.
    if (loading_) return;
    ReadSettings();
    const bool isDays = settings_.range.range == TransRange::DateRange;
    ui_->dpTransStart->setEnabled(isDays);
    ui_->dpTransEnd->setEnabled(isDays);
    FillCounts(*ui_->lstAccounts, settings_.range,
               settings_.showCount ? ShowCount::Yes : ShowCount::No);
}

/// An invalid date is replaced by the previous one.
void frmFinExport::DayEntered(core::binding::DateEdit& box) {
    if (loading_) return;
    const bool isStart = &box == ui_->dpTransStart;
    platform::Date& kept = isStart ? settings_.range.start : settings_.range.end;
    const auto day = box.Day();
    if (day && *day == kept) return;
    const platform::Date former = kept;
    std::string_view fault;
    if (!day || !day->IsSet()) {
        fault = isStart ? "Start Date is not a valid date" : "End Date is not a valid date";
    } else {
        kept = *day;
        if (settings_.range.start > settings_.range.end) {
            fault = isStart ? "Start Date must be earlier than End Date"
                            : "End Date must be later than Start Date";
        }
    }
    if (fault.empty()) {
        RangeChanged();
        return;
    }
    kept = former;
    loading_ = true;
    box.SetDay(former);
    loading_ = false;
    TheDialogs().ShowMessage("Check Date Selections", fault, platform::Icon::Exclamation);
}

void frmFinExport::Export() {
    ReadSettings();
    const FinExportRequest request{
        .type = settings_.finType,
        .range = settings_.range,
        .mark = settings_.markExported ? MarkExported::Yes : MarkExported::No,
        .limit = settings_.limitLength ? LimitLength::Yes : LimitLength::No,
        .accounts = CheckedAccounts(*ui_->lstAccounts)};
    const FinExportObjection objection = ObjectionTo(request);
    if (!objection.text.empty()) {
        TheDialogs().ShowMessage(objection.title, objection.text, platform::Icon::Exclamation);
        return;
    }
    if (request.type == FinType::Iif) {
        TheDialogs().ShowMessage("Quickbooks Note", kIifNote, platform::Icon::Information);
    }
    const FinFormat& format = FormatOf(request.type);
    const std::string ending = "." + std::string(format.extension);
    auto file =
        platform::TheChoosers().SaveFile({"Select Export File",
                                          settings_.lastFileName + ending,
                                          {{std::string(format.filterName), "*" + ending}}});
    if (!file) return;
    std::filesystem::path path = *file;
    if (!path.has_extension()) path += ending;
    const std::int64_t count = RunFinExport(request, path);
    TheDialogs().ShowMessage("Export Success", ExportedText(count), platform::Icon::Information);
    settings_.lastFileName = WithoutExtension(path);
    SaveLastFileName(settings_.lastFileName);
    FillList();
}

} // namespace exchange::screens
