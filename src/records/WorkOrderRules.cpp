#include "records/WorkOrderRules.h"

#include "core/Lookups.h"
#include "platform/values/Text.h"
#include "records/FillChoices.h"

namespace records {

using platform::Trim;

std::vector<std::string> WorkOrderErrors(std::string_view shortDesc) {
    if (Trim(shortDesc).empty()) return {"A description must be entered."};
    return {};
}

std::vector<std::string> HistoryErrors(std::string_view description) {
    if (Trim(description).empty()) return {"A description must be entered."};
    return {};
}

void FillOwnersOfUnit(core::ChoiceList& list, std::int32_t idUnit, std::int32_t selectedId) {
    FillChoices(list,
                {"[ No Account Selected ]",
                 "SELECT DISTINCT Account.ShowAs AS Description, Account.IdAccount AS ID "
                 "FROM Account, OwnerLink "
                 "WHERE (OwnerLink.IdAccount = Account.IdAccount) AND (OwnerLink.IdBuilding = ?) "
                 "ORDER BY 1",
                 {core::GetUnitBuilding(idUnit)}},
                selectedId);
}

} // namespace records
