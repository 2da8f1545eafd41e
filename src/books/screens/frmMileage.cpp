#include "books/screens/frmMileage.h"

#include <algorithm>
#include <array>

#include "books/screens/frmMileageWiz.h"
#include "core/Lookups.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "removal/DeleteRecord.h"
#include "ui_frmMileage.h"

namespace books::screens {

using core::binding::GetSelectedId;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

double ReadingOf(const platform::Field& field) {
    return field.IsNull() ? 0 : field.AsDouble();
}

double MilesIn(const QLineEdit& box) {
    return platform::TryParseNumber(FromScreen(box.text())).value_or(0);
}

} // namespace

frmMileage::frmMileage(QWidget* parent)
    : RecordForm({core::kMileage, "Mileage", "IdMileage"}, parent),
      ui_(std::make_unique<Ui::frmMileage>()) {
    ui_->setupUi(this);
    MakeMenu();
    Wire();
    Connect();
    ConnectOdometer();
}

frmMileage::~frmMileage() = default;

void frmMileage::Setup(std::int32_t id) {
    OpenRecord(
        id, [this] { FillLists(); }, [this] { Propose(); });
    ShowAvailable();
}

void frmMileage::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    odometer_ = Odometer::Of(ReadingOf(row["OBegin"]), ReadingOf(row["OEnd"]));
}

void frmMileage::FollowOthers(const core::binding::Controls& touched) {
    const std::array<const QWidget*, 3> boxes = {ui_->txtOBegin, ui_->txtOEnd, ui_->txtMileage};
    if (std::ranges::any_of(boxes, [&](auto* box) { return touched.contains(box); })) return;
    odometer_ = Odometer::Of(MilesIn(*ui_->txtOBegin), MilesIn(*ui_->txtOEnd));
}

void frmMileage::Store() {
    isNew_ = Id() == 0;
    RecordForm::Store();
}

void frmMileage::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    // The three fields are saved together, since they depend on each other.
    if (IsTouched(*ui_->txtOBegin) || IsTouched(*ui_->txtOEnd) || IsTouched(*ui_->txtMileage)) {
        row["OBegin"].Set(odometer_.Begin());
        row["OEnd"].Set(odometer_.End());
        row["Mileage"].Set(odometer_.Distance().value_or(0));
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
    const bool isOdometerTouched =
        IsTouched(*ui_->txtOBegin) || IsTouched(*ui_->txtOEnd) || IsTouched(*ui_->txtMileage);
    if (isOdometerTouched && !odometer_.Distance())
        lines.emplace_back("The ending odometer reading must not be below the starting one.");
    return lines;
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
    odometer_ = Odometer::At(static_cast<double>(core::GetVehicleMaxOdometer(vehicle)));
    ShowOdometer();
}

/// The box that is typed in stays as it is.
void frmMileage::ShowOdometer(const QWidget* typed) {
    const auto show = [&](QLineEdit& box, std::optional<double> miles) {
        if (&box == typed) return;
        box.setText(miles ? ToScreen(platform::FormatNumber(*miles, "#,###.0")) : QString());
    };
    show(*ui_->txtOBegin, odometer_.Begin());
    show(*ui_->txtOEnd, odometer_.End());
    show(*ui_->txtMileage, odometer_.Distance());
}

void frmMileage::VehicleChosen() {
    if (Id() != 0 || beginTyped_) return;
    odometer_.TypeBegin(static_cast<double>(
        core::GetVehicleMaxOdometer(FromScreen(ui_->cboVehicle->currentText()))));
    ShowOdometer();
}

/// Proposes the way there and back for a trip without a distance.
void frmMileage::BuildingChosen() {
    const std::int32_t idBuilding = GetSelectedId(*ui_->cboBuilding);
    if (idBuilding == 0) return;
    if (ui_->cboDestination->currentText().isEmpty())
        ui_->cboDestination->setEditText(ui_->cboBuilding->currentText());
    if (MilesIn(*ui_->txtMileage) != 0) return;
    odometer_.TypeDistance(2 * static_cast<double>(core::GetBuildingDistance(idBuilding)));
    ShowOdometer();
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
    const double miles = MilesIn(*ui_->txtMileage);
    BecomeNew();
    ui_->grd->SelectNone(0);
    ui_->dpEntryDate->SetDay(platform::Today());
    beginTyped_ = false;
    odometer_ = Odometer::At(0);
    odometer_.TypeDistance(miles);
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
    ui_->cmdAdd->setToolTip(Dirty() ? tr("Adds what the boxes hold as a new trip")
                                    : tr("Enter a trip first"));
}

} // namespace books::screens
