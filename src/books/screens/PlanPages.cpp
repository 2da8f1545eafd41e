#include "books/screens/PlanPages.h"

#include "books/Odometer.h"
#include "core/Descriptions.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/DayErrors.h"
#include "core/binding/NumberBox.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "ui_PlanBuildings.h"
#include "ui_PlanVehicles.h"

namespace books::screens {

using core::binding::NumberIn;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kOneDecimal = "#,###.0";

QString Number(double number, std::string_view format) {
    return ToScreen(platform::FormatNumber(number, format));
}

} // namespace

VehiclesPage::VehiclesPage(QWidget* parent)
    : PlanRows(parent), ui_(std::make_unique<Ui::PlanVehicles>()) {
    ui_->setupUi(this);
    Connect(*ui_->lvwVehicles, 0, ui_->cmdVehicleAdd, *ui_->cmdVehicleUpdate,
            *ui_->cmdVehicleDelete);
}

VehiclesPage::~VehiclesPage() = default;

QStringList VehiclesPage::Cells(int row) const {
    const PlanVehicle& vehicle = At(row);
    return {ToScreen(vehicle.name),           Number(vehicle.begin, kOneDecimal),
            Number(vehicle.end, kOneDecimal), ToScreen(vehicle.from.ToText()),
            ToScreen(vehicle.to.ToText()),    Number(vehicle.percent, kOneDecimal)};
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
    if (NumberIn(*ui_->txtOEnd) < NumberIn(*ui_->txtOStart)) lines.emplace_back(kEndsBelowStart);
    const auto from = ui_->dpDateStart->Day();
    const auto to = ui_->dpDateEnd->Day();
    if (from && to && (!from->IsSet() || *to < *from))
        lines.emplace_back("The start date must not be after the end date.");
    return lines;
}

void VehiclesPage::Store(int row) {
    PlanVehicle& vehicle = AtOrNew(row);
    vehicle.name = FromScreen(ui_->txtVehicle->text().trimmed());
    vehicle.begin = NumberIn(*ui_->txtOStart);
    vehicle.end = NumberIn(*ui_->txtOEnd);
    vehicle.from = ui_->dpDateStart->Day().value_or(platform::Date());
    vehicle.to = ui_->dpDateEnd->Day().value_or(platform::Date());
    vehicle.percent = NumberIn(*ui_->txtPctUsed);
}

BuildingsPage::BuildingsPage(QWidget* parent)
    : PlanRows(parent), ui_(std::make_unique<Ui::PlanBuildings>()) {
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

double BuildingsPage::Variance() const {
    return NumberIn(*ui_->txtBuildingVariance);
}

QStringList BuildingsPage::Cells(int row) const {
    return {ToScreen(At(row).address), Number(At(row).distance, kOneDecimal)};
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
    PlanBuilding& building = AtOrNew(row);
    building.id = core::binding::GetSelectedId(*ui_->cboBuilding);
    building.address = core::GetDescription(core::kBuilding, building.id, 0, true);
    building.distance = NumberIn(*ui_->txtDistance);
}

} // namespace books::screens
