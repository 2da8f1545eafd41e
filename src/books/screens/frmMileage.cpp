#include "books/screens/frmMileage.h"

#include <algorithm>
#include <array>

#include "books/screens/OdometerBoxes.h"
#include "books/screens/frmMileageWiz.h"
#include "core/Lookups.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/NumberBox.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "removal/DeleteRecord.h"
#include "ui_frmMileage.h"

namespace books::screens {

using core::binding::GetSelectedId;
using core::binding::NumberIn;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

double ReadingOf(const platform::Field& field) {
    return field.IsNull() ? 0 : field.AsDouble();
}

} // namespace

frmMileage::frmMileage(QWidget* parent)
    : RecordForm({core::kMileage, "Mileage", "IdMileage"}, parent),
      ui_(std::make_unique<Ui::frmMileage>()) {
    ui_->setupUi(this);
    MakeMenu();
    Wire();
    odometer_ = std::make_unique<OdometerBoxes>(*ui_->txtOBegin, *ui_->txtOEnd, *ui_->txtMileage);
    Connect();
    ConnectChoices();
}

frmMileage::~frmMileage() = default;

void frmMileage::Setup(std::int32_t id) {
    OpenRecord(
        id, [this] { FillLists(); }, [this] { Propose(); });
    ShowAvailable();
}

void frmMileage::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    odometer_->Take(Odometer::Of(ReadingOf(row["OBegin"]), ReadingOf(row["OEnd"])));
}

void frmMileage::FollowOthers(const core::binding::Controls& touched) {
    const std::array<const QWidget*, 3> boxes = {ui_->txtOBegin, ui_->txtOEnd, ui_->txtMileage};
    if (std::ranges::any_of(boxes, [&](auto* box) { return touched.contains(box); })) return;
    odometer_->Take(Odometer::Of(NumberIn(*ui_->txtOBegin), NumberIn(*ui_->txtOEnd)));
}

void frmMileage::Store() {
    isNew_ = Id() == 0;
    RecordForm::Store();
}

void frmMileage::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    // The three fields are saved together, since they depend on each other.
    if (IsOdometerTouched()) {
        const Odometer& readings = odometer_->Readings();
        row["OBegin"].Set(readings.Begin());
        row["OEnd"].Set(readings.End());
        row["Mileage"].Set(readings.Distance().value_or(0));
    }
    // A restored trip keeps these fields.
    if (isNew_) SetNewTripFields(row);
}

void frmMileage::ShowCaption() {
    const bool isNew = Id() == 0;
    const QString trip = tr("Trip of %1").arg(ui_->dpEntryDate->text());
    setWindowTitle(isNew ? tr("Vehicle Mileage") : tr("Vehicle Mileage: %1").arg(trip));
    ui_->grpTrip->setTitle(isNew ? tr("New Trip") : trip);
    ShowAvailable();
}

std::vector<std::string> frmMileage::Errors() {
    std::vector<std::string> lines;
    if (IsTouched(*ui_->cboVehicle) && ui_->cboVehicle->currentText().trimmed().isEmpty())
        lines.emplace_back("A vehicle must be entered.");
    if (IsOdometerTouched() && !odometer_->Readings().Distance())
        lines.emplace_back(kEndsBelowStart);
    return lines;
}

bool frmMileage::IsOdometerTouched() const {
    return IsTouched(*ui_->txtOBegin) || IsTouched(*ui_->txtOEnd) || IsTouched(*ui_->txtMileage);
}

/// Proposes a trip today with the usual vehicle, starting at its last reading.
void frmMileage::Propose() {
    beginTyped_ = false;
    const std::string vehicle = core::GetDefaultCar();
    ui_->dpEntryDate->SetDay(platform::Today());
    ui_->cboVehicle->setEditText(ToScreen(vehicle));
    ui_->cboDestination->setEditText({});
    ui_->cboBuilding->setCurrentIndex(0);
    ui_->txtMeal->SetAmount({});
    odometer_->Show(Odometer::At(static_cast<double>(core::GetVehicleMaxOdometer(vehicle))));
}

void frmMileage::VehicleChosen() {
    if (Id() != 0 || beginTyped_) return;
    Odometer readings = odometer_->Readings();
    readings.TypeBegin(static_cast<double>(
        core::GetVehicleMaxOdometer(FromScreen(ui_->cboVehicle->currentText()))));
    odometer_->Show(readings);
}

/// Proposes the way there and back for a trip without a distance.
void frmMileage::BuildingChosen() {
    const std::int32_t idBuilding = GetSelectedId(*ui_->cboBuilding);
    if (idBuilding == 0) return;
    if (ui_->cboDestination->currentText().isEmpty())
        ui_->cboDestination->setEditText(ui_->cboBuilding->currentText());
    if (NumberIn(*ui_->txtMileage) != 0) return;
    Odometer readings = odometer_->Readings();
    readings.TypeDistance(2 * static_cast<double>(core::GetBuildingDistance(idBuilding)));
    odometer_->Show(readings);
}

bool frmMileage::MayLeaveTrip() {
    return !Dirty() || MayClose();
}

/// Adds the entries as a new trip; the selected one stays unchanged.
void frmMileage::Add() {
    if (!Dirty()) return;
    if (Id() != 0) {
        BecomeNew();
        ui_->grd->SelectNone(0);
    }
    Apply();
    if (Dirty() || Id() == 0) return;
    ShowRecord(0);
    FillGrid();
    ui_->dpEntryDate->setFocus();
}

void frmMileage::NewTrip() {
    if (!MayLeaveTrip()) return;
    ShowRecord(0);
    FillGrid();
    ui_->dpEntryDate->setFocus();
}

/// Proposes the same trip for today, starting at the vehicle's last reading.
void frmMileage::CopyTrip() {
    if (Id() == 0 || !MayLeaveTrip()) return;
    const double miles = NumberIn(*ui_->txtMileage);
    BecomeNew();
    ui_->grd->SelectNone(0);
    ui_->dpEntryDate->SetDay(platform::Today());
    beginTyped_ = false;
    Odometer readings = Odometer::At(0);
    readings.TypeDistance(miles);
    odometer_->Take(readings);
    VehicleChosen();
    MarkDirty();
    ui_->dpEntryDate->setFocus();
}

void frmMileage::DeleteTrip() {
    if (Id() == 0 || !removal::DeleteRecord(core::kMileage, Id())) return;
    ShowRecord(0);
    FillGrid();
}

void frmMileage::OpenWizard() {
    if (wizard_) {
        wizard_->raise();
        wizard_->activateWindow();
        return;
    }
    auto* const wizard = new frmMileageWiz;
    wizard_ = wizard;
    wizard->Setup();
}

void frmMileage::ShowAvailable() {
    const bool isStored = Id() != 0;
    const QString none = isStored ? QString() : tr("Select a trip first");
    ui_->cmdDelete->setEnabled(isStored);
    ui_->cmdDelete->setToolTip(none);
    for (QAction* const item : {copy_, delete_}) {
        item->setEnabled(isStored);
        item->setToolTip(none);
    }
    ui_->cmdAdd->setEnabled(Dirty());
    ui_->cmdAdd->setToolTip(Dirty() ? tr("Adds the entries in the boxes as a new trip")
                                    : tr("Enter a trip first"));
}

} // namespace books::screens
