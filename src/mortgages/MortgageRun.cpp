#include "mortgages/MortgageRun.h"

#include "core/BatchRun.h"
#include "core/RecordKinds.h"
#include "mortgages/mMortgage.h"

namespace mortgages {

void UpdateMortgages(core::RunListener& listener) {
    const auto update = [](platform::Recordset& mortgage) {
        return UpdateMortgage(mortgage, RunMode::CatchUp);
    };
    core::UpdateEach(core::kMortgage, "SELECT * FROM MORTGAGE", "IdMortgage", update, listener);
}

} // namespace mortgages
