#include "core/binding/PeriodBox.h"

#include "core/Periods.h"
#include "core/binding/ComboList.h"

namespace core::binding {

void FillPeriods(QComboBox& combo, std::int32_t days) {
    ChoiceList list;
    for (const Period& period : kPeriods)
        list.Add(period.text, period.days);
    core::SelectById(list, days, {.selectFirst = true});
    ShowInCombo(list, combo);
}

} // namespace core::binding
