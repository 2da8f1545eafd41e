#include "books/screens/frmAutoEvent.h"

#include <algorithm>

#include "books/AutoEventRules.h"
#include "books/screens/CategoryBox.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/NumberBox.h"
#include "core/forms/TabPages.h"
#include "platform/database/FieldReadings.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmAutoEvent.h"

namespace books::screens {

using core::binding::GetSelectedId;
using platform::Recordset;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

template <class Code>
void Offer(QComboBox& box, const QString& text, Code code) {
    const QSignalBlocker quiet(box);
    box.addItem(text, static_cast<int>(code));
}

} // namespace

frmAutoEvent::frmAutoEvent(QWidget* parent)
    : RecordForm({core::kAutoEvent, "AutoEvent", "IdAutoEvent"}, parent),
      ui_(std::make_unique<Ui::frmAutoEvent>()) {
    ui_->setupUi(this);
    trigger_ =
        std::make_unique<PartyBoxes>(*ui_->cboTriggerType, *ui_->cboTrigger, Nobody::Offered, this);
    from_ = std::make_unique<PartyBoxes>(*ui_->cboFromType, *ui_->cboFrom, Nobody::Offered, this);
    to_ = std::make_unique<PartyBoxes>(*ui_->cboToType, *ui_->cboTo, Nobody::Offered, this);
    references_ = std::make_unique<ReferenceBoxes>(
        ReferenceBoxes::Boxes{ui_->cboLease, ui_->cboTenant, ui_->cboBuilding, ui_->cboUnit,
                              ui_->cboMortgage, ui_->cboWorkOrder},
        this);
    Wire();
    connect(ui_->optScheduled, &QRadioButton::toggled, this, &frmAutoEvent::ShowAvailable);
    connect(ui_->optScheduled, &QRadioButton::toggled, this, &frmAutoEvent::ShowLastRun);
    connect(ui_->cboIntervalType, &QComboBox::currentIndexChanged, this,
            &frmAutoEvent::ShowLastRun);
    connect(ui_->txtIntervalPeriod, &QLineEdit::textChanged, this, &frmAutoEvent::ShowLastRun);
    connect(ui_->cboEventAction, &QComboBox::currentIndexChanged, this,
            &frmAutoEvent::ShowAvailable);
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmAutoEvent::~frmAutoEvent() = default;

void frmAutoEvent::Setup(std::int32_t id) {
    OpenRecord(id, [this] { FillLists(); });
}

void frmAutoEvent::FillLists() {
    Offer(*ui_->cboIntervalType, tr("Day"), IntervalType::Day);
    Offer(*ui_->cboIntervalType, tr("Week"), IntervalType::Week);
    Offer(*ui_->cboIntervalType, tr("Month"), IntervalType::Month);
    Offer(*ui_->cboIntervalType, tr("Day of Month"), IntervalType::DayOfMonth);
    Offer(*ui_->cboIntervalType, tr("Year"), IntervalType::Year);
    core::binding::SelectById(*ui_->cboIntervalType, static_cast<int>(IntervalType::Month));
    Offer(*ui_->cboEventAction, tr("No Action"), EventAction::None);
    Offer(*ui_->cboEventAction, tr("Process Transaction"), EventAction::ProcessTransaction);
    ui_->optScheduled->setChecked(true);
    ui_->chkEnabled->setChecked(true);
    ui_->txtIntervalPeriod->setText(QStringLiteral("1"));
    ui_->txtAmount->SetAmount({});
    stored_.reset();
    lastRun_.clear();
    ShowLastRun();
    ShowAvailable();
    FillTriggerCategories(*ui_->cboTriggerCategory);
    FillCategories(*ui_->cboCategory);
    for (PartyBoxes* const boxes : {trigger_.get(), from_.get(), to_.get()})
        boxes->Show(core::kAccount, 0);
    references_->Fill({});
}

void frmAutoEvent::ShowRow(Recordset& row) {
    // The categories are shown first, so that one that isn't offered is added with its class.
    const Ien ien{ShortOf(row["IEN"])};
    if (!row["TaxCategory"].IsNull()) {
        ShowCategory(*ui_->cboCategory, {row["TaxCategory"].AsText(), ien});
    }
    if (!row["TriggerTaxCategory"].IsNull()) {
        ShowCategory(*ui_->cboTriggerCategory, {row["TriggerTaxCategory"].AsText(), Ien::Income});
    }
    RecordForm::ShowRow(row);
    trigger_->ShowStored(IdOf(row["TriggerID"]));
    from_->ShowStored(IdOf(row["DebitId"]));
    to_->ShowStored(IdOf(row["CreditId"]));
    stored_.reset();
    if (EventType{ShortOf(row["EventType"])} == EventType::Scheduled) {
        stored_ = Schedule();
        lastRun_ = row["LastRun"].IsBlank()
                       ? QString()
                       : ToScreen(platform::Format(row["LastRun"].Value(), platform::kDateFormat));
    }
    ShowLastRun();
    references_->ShowAvailable();
    ShowAvailable();
}

void frmAutoEvent::WriteRow(Recordset& row) {
    RecordForm::WriteRow(row);
    if (WritesNewRow() || IsTouched(*ui_->cboCategory))
        row["IEN"].Set(static_cast<std::int16_t>(ChosenCategory(*ui_->cboCategory).ien));
    if (Type() != EventType::Scheduled) return;
    // A screen with its record's id as tag edits a stored event.
    const bool isNew = OpenRecordId() == 0;
    if (isNew || StartsAgain()) {
        const platform::Date seed = SeedOf(Schedule(), platform::Today());
        if (seed.IsSet() || !isNew) row["LastRun"].Set(seed.ToText());
    }
}

EventSchedule frmAutoEvent::Schedule() const {
    const double period = core::binding::NumberIn(*ui_->txtIntervalPeriod);
    EventSchedule schedule;
    schedule.interval =
        IntervalType{static_cast<std::int16_t>(GetSelectedId(*ui_->cboIntervalType))};
    constexpr double kMost = 32'767;
    schedule.period = platform::RoundToInt16(std::clamp(period, -kMost, kMost));
    return schedule;
}

bool frmAutoEvent::StartsAgain() const {
    if (OpenRecordId() == 0 || Type() != EventType::Scheduled) return false;
    const EventSchedule now = Schedule();
    return !stored_ || now.interval != stored_->interval || now.period != stored_->period;
}

void frmAutoEvent::ShowLastRun() {
    const QString last = lastRun_.isEmpty() ? tr("Never") : lastRun_;
    ui_->lblLastRun->setText(StartsAgain() ? tr("%1 (starts again when saved)").arg(last) : last);
}

void frmAutoEvent::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Auto Event")
                             : tr("Auto Event: %1").arg(ui_->txtDescription->text()));
}

EventType frmAutoEvent::Type() const {
    return ui_->optScheduled->isChecked() ? EventType::Scheduled : EventType::Triggered;
}

std::vector<std::string> frmAutoEvent::Errors() {
    return AutoEventErrors({FromScreen(ui_->txtDescription->text()), Type(),
                            core::binding::NumberIn(*ui_->txtIntervalPeriod)});
}

void frmAutoEvent::ShowAvailable() {
    const bool isScheduled = Type() == EventType::Scheduled;
    ui_->grpSchedule->setVisible(isScheduled);
    ui_->grpTrigger->setVisible(!isScheduled);
    const bool posts = GetSelectedId(*ui_->cboEventAction) ==
                       static_cast<std::int32_t>(EventAction::ProcessTransaction);
    ui_->tabs->setTabEnabled(ui_->tabs->indexOf(ui_->pagTransaction), posts);
    ui_->tabs->setTabEnabled(ui_->tabs->indexOf(ui_->pagReferences), posts);
}

void frmAutoEvent::Refresh(core::RecordKind kind) {
    if (kind == core::kTransCategory) {
        RefreshCategories(*ui_->cboCategory);
        RefreshTriggerCategories(*ui_->cboTriggerCategory);
    }
    for (PartyBoxes* const boxes : {trigger_.get(), from_.get(), to_.get()})
        boxes->Refresh(kind);
    references_->Refresh(kind);
}

} // namespace books::screens
