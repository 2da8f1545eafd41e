#include "records/SvcContractRules.h"

#include "records/FillChoices.h"

namespace records {

std::vector<std::string> SvcContractErrors(std::int32_t idBuilding, std::int32_t idVendor) {
    std::vector<std::string> lines;
    if (idBuilding == 0) lines.emplace_back("A building must be selected.");
    if (idVendor == 0) lines.emplace_back("A Vendor must be selected.");
    return lines;
}

void FillAppliancesOfBuilding(core::ChoiceList& list, std::int32_t idBuilding,
                              std::int32_t selectedId) {
    FillChoices(list,
                {"[ No Appliance Selected ]",
                 "SELECT Appliance.IdAppliance AS ID, "
                 "Appliance.Manufacturer & ' ' & Appliance.ApplianceType & ' ' & Appliance.SN "
                 "AS Description "
                 "FROM Appliance, Unit, Building "
                 "WHERE Appliance.IdUnit = Unit.IdUnit "
                 "AND Unit.IdBuilding = Building.IdBuilding "
                 "AND Building.IdBuilding = ?",
                 {idBuilding}},
                selectedId);
}

} // namespace records
