#include "mortgages/MortgageRun.h"

#include <vector>

#include "core/BatchRun.h"
#include "core/RecordKinds.h"
#include "mortgages/mMortgage.h"

namespace mortgages {

void UpdateMortgages(core::RunListener& listener) {
    const auto update = [](platform::Recordset& mortgage) {
        std::vector<core::PostedRow> rows;
        for (const Charge& charge : UpdateMortgage(mortgage, RunMode::CatchUp))
            rows.push_back({charge.date, WordsOf(charge.flags).category, charge.Total()});
        return rows;
    };
    core::UpdateEach(core::kMortgage, "SELECT * FROM MORTGAGE", "IdMortgage", update, listener);
}

} // namespace mortgages
