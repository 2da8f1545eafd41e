#include "books/screens/frmAutoEvent.h"

#include "books/AutoEventRules.h"
#include "books/EventSchedule.h"
#include "books/screens/CategoryBox.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
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
    ui_->lblLastRun->setText(tr("Never"));
    ShowAvailable();
    FillCategories(*ui_->cboTriggerCategory);
    FillCategories(*ui_->cboCategory);
    for (PartyBoxes* const boxes : {trigger_.get(), from_.get(), to_.get()})
        boxes->Show(core::kAccount, 0);
    references_->Fill({});
}

void frmAutoEvent::ShowRow(Recordset& row) {
    // The categories first, so that one that isn't offered joins its list with its class.
    const Ien ien{CountOf(row["IEN"])};
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
    ui_->lblLastRun->setText(
        row["LastRun"].IsBlank()
            ? tr("Never")
            : ToScreen(platform::Format(row["LastRun"].Value(), platform::kDateFormat)));
    references_->ShowAvailable();
    ShowAvailable();
}

void frmAutoEvent::WriteRow(Recordset& row) {
    RecordForm::WriteRow(row);
    if (WritesNewRow() || IsTouched(*ui_->cboCategory))
        row["IEN"].Set(static_cast<std::int16_t>(ChosenCategory(*ui_->cboCategory).ien));
    // A screen that has its record's tag edits a stored event.
    if (OpenRecordId() == 0) SeedLastRun(row);
}

/// So that a new event for a day of the month waits for that day.
void frmAutoEvent::SeedLastRun(Recordset& row) const {
    const bool ofDay =
        GetSelectedId(*ui_->cboIntervalType) == static_cast<std::int32_t>(IntervalType::DayOfMonth);
    if (Type() != EventType::Scheduled || !ofDay) return;
    row["LastRun"].Set(
        SeedOfDayOfMonth(row["IntervalPeriod"].AsInteger(), platform::Today()).ToText());
}

void frmAutoEvent::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Auto Event")
                             : tr("Auto Event: %1").arg(ui_->txtDescription->text()));
}

EventType frmAutoEvent::Type() const {
    return ui_->optScheduled->isChecked() ? EventType::Scheduled : EventType::Triggered;
}

std::vector<std::string> frmAutoEvent::Errors() {
    const auto period = platform::TryParseNumber(FromScreen(ui_->txtIntervalPeriod->text()));
    return AutoEventErrors({FromScreen(ui_->txtDescription->text()), Type(), period.value_or(0)});
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

void frmAutoEvent::Refresh(std::int16_t kind) {
    if (kind == core::kTransCategory) {
        RefreshCategories(*ui_->cboCategory);
        RefreshCategories(*ui_->cboTriggerCategory);
    }
    for (PartyBoxes* const boxes : {trigger_.get(), from_.get(), to_.get()})
        boxes->Refresh(kind);
    references_->Refresh(kind);
}

} // namespace books::screens
