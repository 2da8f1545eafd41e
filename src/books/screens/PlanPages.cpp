#include "books/screens/PlanPages.h"

#include <algorithm>

#include "core/Descriptions.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/DayErrors.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "ui_PlanBuildings.h"
#include "ui_PlanVehicles.h"

namespace books::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kOneDecimal = "#,###.0";

QString Number(double number, std::string_view format) {
    return ToScreen(platform::FormatNumber(number, format));
}

double NumberIn(const QLineEdit& box) {
    return platform::TryParseNumber(FromScreen(box.text())).value_or(0);
}

} // namespace

VehiclesPage::VehiclesPage(QWidget* parent)
    : PlanList(parent), ui_(std::make_unique<Ui::PlanVehicles>()) {
    ui_->setupUi(this);
    Connect(*ui_->lvwVehicles, 0, ui_->cmdVehicleAdd, *ui_->cmdVehicleUpdate,
            *ui_->cmdVehicleDelete);
}

VehiclesPage::~VehiclesPage() = default;

void VehiclesPage::Show(std::vector<PlanVehicle> vehicles) {
    vehicles_ = std::move(vehicles);
    ShowRows(0);
}

QStringList VehiclesPage::Cells(int row) const {
    const PlanVehicle& vehicle = At(row);
    return {ToScreen(vehicle.name),           Number(vehicle.begin, kOneDecimal),
            Number(vehicle.end, kOneDecimal), ToScreen(vehicle.from.ToText()),
            ToScreen(vehicle.to.ToText()),    Number(vehicle.percent, kOneDecimal)};
}

void VehiclesPage::Tick(int row, bool isOn) {
    vehicles_.at(static_cast<std::size_t>(row)).isUsed = isOn;
}

void VehiclesPage::ShowBoxes(int row) {
    const PlanVehicle& vehicle = At(row);
    ui_->txtVehicle->setText(ToScreen(vehicle.name));
    ui_->txtOStart->setText(Number(vehicle.begin, kOneDecimal));
    ui_->txtOEnd->setText(Number(vehicle.end, kOneDecimal));
    ui_->dpDateStart->SetDay(vehicle.from);
    ui_->dpDateEnd->SetDay(vehicle.to);
    ui_->txtPctUsed->setText(Number(vehicle.percent, kOneDecimal));
}

std::vector<std::string> VehiclesPage::Errors(int row) const {
    std::vector<std::string> lines = core::binding::DayErrors(*this);
    const std::string name = FromScreen(ui_->txtVehicle->text().trimmed());
    if (name.empty()) lines.emplace_back("A vehicle must be entered.");
    for (int other = 0; other < Count(); ++other) {
        if (other != row && platform::EqualIgnoringCase(At(other).name, name))
            lines.push_back(name + " is on the list already.");
    }
    if (NumberIn(*ui_->txtOEnd) < NumberIn(*ui_->txtOStart))
        lines.emplace_back("The ending odometer reading must not be below the starting one.");
    const auto from = ui_->dpDateStart->Day();
    const auto to = ui_->dpDateEnd->Day();
    if (from && to && (!from->IsSet() || *to < *from))
        lines.emplace_back("The start date must not be after the end date.");
    return lines;
}

void VehiclesPage::Store(int row) {
    if (row == Count()) vehicles_.emplace_back();
    PlanVehicle& vehicle = vehicles_.at(static_cast<std::size_t>(row));
    vehicle.name = FromScreen(ui_->txtVehicle->text().trimmed());
    vehicle.begin = NumberIn(*ui_->txtOStart);
    vehicle.end = NumberIn(*ui_->txtOEnd);
    vehicle.from = ui_->dpDateStart->Day().value_or(platform::Date());
    vehicle.to = ui_->dpDateEnd->Day().value_or(platform::Date());
    vehicle.percent = NumberIn(*ui_->txtPctUsed);
}

void VehiclesPage::Remove(int row) {
    vehicles_.erase(vehicles_.begin() + row);
}

BuildingsPage::BuildingsPage(QWidget* parent)
    : PlanList(parent), ui_(std::make_unique<Ui::PlanBuildings>()) {
    ui_->setupUi(this);
    Connect(*ui_->lvwBuildings, 0, ui_->cmdBuildingAdd, *ui_->cmdBuildingUpdate,
            *ui_->cmdBuildingDelete);
    connect(ui_->cboBuilding, &QComboBox::currentIndexChanged, this, [this] {
        const std::int32_t id = core::binding::GetSelectedId(*ui_->cboBuilding);
        ui_->txtDistance->setText(
            Number(static_cast<double>(core::GetBuildingDistance(id)), kOneDecimal));
    });
    connect(ui_->txtBuildingVariance, &QLineEdit::textChanged, this, &PlanList::Changed);
}

BuildingsPage::~BuildingsPage() = default;

void BuildingsPage::FillChoices() {
    core::binding::FillList(core::kBuilding, *ui_->cboBuilding, {.addNone = true});
}

void BuildingsPage::Show(std::vector<PlanBuilding> buildings) {
    buildings_ = std::move(buildings);
    ShowRows(0);
}

double BuildingsPage::Variance() const {
    return NumberIn(*ui_->txtBuildingVariance);
}

QStringList BuildingsPage::Cells(int row) const {
    return {ToScreen(At(row).address), Number(At(row).distance, kOneDecimal)};
}

void BuildingsPage::Tick(int row, bool isOn) {
    buildings_.at(static_cast<std::size_t>(row)).isUsed = isOn;
}

void BuildingsPage::ShowBoxes(int row) {
    core::binding::SelectOrName(*ui_->cboBuilding, At(row).id, At(row).address);
    ui_->txtDistance->setText(Number(At(row).distance, kOneDecimal));
}

std::vector<std::string> BuildingsPage::Errors(int row) const {
    std::vector<std::string> lines;
    const std::int32_t id = core::binding::GetSelectedId(*ui_->cboBuilding);
    if (id == 0) lines.emplace_back("A building must be selected.");
    for (int other = 0; other < Count(); ++other) {
        if (other != row && id != 0 && At(other).id == id)
            lines.push_back(At(other).address + " is on the list already.");
    }
    return lines;
}

void BuildingsPage::Store(int row) {
    if (row == Count()) buildings_.emplace_back();
    PlanBuilding& building = buildings_.at(static_cast<std::size_t>(row));
    building.id = core::binding::GetSelectedId(*ui_->cboBuilding);
    building.address = core::GetDescription(core::kBuilding, building.id, 0, true);
    building.distance = NumberIn(*ui_->txtDistance);
}

void BuildingsPage::Remove(int row) {
    buildings_.erase(buildings_.begin() + row);
}

} // namespace books::screens
