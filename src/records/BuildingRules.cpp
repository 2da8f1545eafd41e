#include "records/BuildingRules.h"

#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Text.h"

namespace records {

using platform::Currency;
using platform::Recordset;

std::vector<std::string> BuildingErrors(std::string_view address) {
    if (platform::Trim(address).empty()) return {"An address must be entered."};
    return {};
}

std::vector<core::Choice> UnitsOf(std::int32_t idBuilding) {
    Recordset rows = core::Read("SELECT IdUnit, Unit FROM Unit WHERE IdBuilding = ? ORDER BY Unit",
                                {idBuilding});
    std::vector<core::Choice> units;
    for (; !rows.Eof(); rows.MoveNext()) {
        units.push_back({TextOf(rows["Unit"]), rows["IdUnit"].AsLong()});
    }
    return units;
}

bool AreStored(std::int32_t idBuilding, std::int32_t idUnit) {
    return core::RecordExists(core::kBuilding, idBuilding) &&
           core::RecordExists(core::kUnit, idUnit);
}

std::int32_t MakeNewUnit(std::int32_t idBuilding) {
    core::RowToWrite row("Unit", "IdUnit");
    row["IdBuilding"].Set(idBuilding);
    row["Unit"].Set("<new>");
    row["Status"].Set(core::kUnitHold);
    row["Rent"].Set(Currency());
    for (const auto* count : {"Ccount", "SqFt"})
        row[count].Set(std::int32_t{0});
    for (const auto* flag :
         {"Hide", "Selected", "Smoke", "Split", "WDHookup", "Fireplace", "PetAllowed"}) {
        row[flag].Set(false);
    }
    for (const auto* text : {"Faces", "Bedrooms", "Bathrooms", "Garage", "KeyType", "KeyCode",
                             "SecTenant", "Ad", "Notes"}) {
        row[text].Set("");
    }
    row.row.Update();
    core::NotifyAll(core::kUnit, core::kRecordsChanged, 0);
    return row.id;
}

Currency EquityAt(Currency marketValue, std::int32_t idBuilding) {
    const platform::Value owed =
        core::ReadValue("SELECT SUM(CurrentPV) FROM Mortgage WHERE IdBuilding = ?", {idBuilding});
    return owed.IsNull() ? marketValue : marketValue - owed.AsCurrency();
}

std::optional<std::string> DepreciationFault(Currency basis, double years) {
    if (basis <= Currency()) return "Depreciation basis must be greater than 0.";
    if (!(years > 0)) return "Depreciation term must be greater than 0.";
    return std::nullopt;
}

void TellUnitNumberMissing(std::string_view unit) {
    if (!unit.empty()) return;
    platform::TheDialogs().ShowMessage(
        "Unit Number Missing",
        "No unit number specified. When adding additional units to a building a unit number "
        "should be assigned\n"
        "to each unit for ease of management. You may continue without assigning a unit number "
        "and return later\n"
        "to fill this in.",
        platform::Icon::Information);
}

bool AskToConvert() {
    return platform::TheDialogs().AskYesNo(
        "Continue?",
        "To add an additional unit this property will convert to a multi unit building. Please "
        "read the help file\n"
        "section explaining how these are handled differently so you can understand how to "
        "correctly manage these\n"
        "types of properties within Vestrel.\n"
        "Do you wish to continue?",
        platform::Icon::Question);
}

} // namespace records
