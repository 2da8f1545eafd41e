#include "books/screens/CategoryBox.h"

#include <QComboBox>
#include <algorithm>

#include "core/Lists.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"

namespace books::screens {

namespace {

core::ChoiceList Offered() {
    core::ChoiceList stored;
    core::FillList(core::kTransCategory, stored);
    core::ChoiceList list;
    list.Add(kNoCategory, 0);
    for (const core::Choice& row : stored.Rows())
        list.Add(row.text, row.id);
    list.Select(0);
    return list;
}

std::int32_t ClassOf(const Category& category) {
    return static_cast<std::int32_t>(category.ien);
}

} // namespace

void FillCategories(QComboBox& box) {
    core::binding::ShowInCombo(Offered(), box);
}

void FillTriggerCategories(QComboBox& box) {
    core::ChoiceList list = Offered();
    for (const std::string_view category : kPaymentCategories) {
        const auto isIt = [&](const core::Choice& row) { return row.text == category; };
        if (std::none_of(list.Rows().begin(), list.Rows().end(), isIt)) list.Add(category, 0);
    }
    core::binding::ShowInCombo(list, box);
}

void RefreshCategories(QComboBox& box) {
    const Category chosen = ChosenCategory(box);
    FillCategories(box);
    ShowCategory(box, chosen);
}

void RefreshTriggerCategories(QComboBox& box) {
    const Category chosen = ChosenCategory(box);
    FillTriggerCategories(box);
    ShowCategory(box, chosen);
}

void PresetCategory(QComboBox& box, const Category& category) {
    const core::ChoiceList offered = Offered();
    core::ChoiceList list;
    list.Add(category.text, ClassOf(category));
    for (const core::Choice& row : offered.Rows())
        list.Add(row.text, row.id);
    list.Select(0);
    core::binding::ShowInCombo(list, box);
}

void ShowCategory(QComboBox& box, const Category& category) {
    core::ChoiceList list = core::binding::ReadCombo(box);
    core::SelectByText(list, category.text);
    if (!list.Selected() || list.Rows()[*list.Selected()].text != category.text) {
        list.Add(category.text, ClassOf(category));
        list.Select(list.Rows().size() - 1);
    }
    core::binding::ShowInCombo(list, box);
}

Category ChosenCategory(const QComboBox& box) {
    const core::ChoiceList list = core::binding::ReadCombo(box);
    return {list.Text(), Ien{static_cast<std::int16_t>(core::GetSelectedId(list))}};
}

} // namespace books::screens
