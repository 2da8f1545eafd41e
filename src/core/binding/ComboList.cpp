#include "core/binding/ComboList.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "core/PickLists.h"
#include "core/binding/Tags.h"
#include "platform/qt/Text.h"

namespace core::binding {

namespace {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

/// Selects what the list has selected, without touching the rows.
void ShowSelection(const ChoiceList& list, QComboBox& combo) {
    const QSignalBlocker quiet(combo);
    combo.setCurrentIndex(list.Selected() ? static_cast<int>(*list.Selected()) : -1);
    const QString text = ToScreen(list.Text());
    if (combo.currentText() == text) return;
    if (combo.isEditable()) {
        combo.setEditText(text);
        return;
    }
    combo.addItem(text, 0);
    combo.setCurrentIndex(combo.count() - 1);
}

} // namespace

ChoiceList ReadCombo(const QComboBox& combo) {
    ChoiceList list;
    for (int row = 0; row < combo.count(); ++row) {
        list.Add(FromScreen(combo.itemText(row)), combo.itemData(row).toInt());
    }
    if (combo.currentIndex() >= 0) list.Select(static_cast<std::size_t>(combo.currentIndex()));
    list.SetText(FromScreen(combo.currentText()));
    return list;
}

void ShowInCombo(const ChoiceList& list, QComboBox& combo) {
    const QSignalBlocker quiet(combo);
    combo.clear();
    for (const Choice& row : list.Rows())
        combo.addItem(ToScreen(row.text), row.id);
    ShowSelection(list, combo);
}

void FillList(int kind, QComboBox& combo, const FillOptions& options) {
    ChoiceList list = ReadCombo(combo);
    try {
        core::FillList(kind, list, options);
    } catch (...) {
        ShowInCombo(list, combo);
        throw;
    }
    ShowInCombo(list, combo);
}

void FillFromCommaList(QComboBox& combo, std::string_view text) {
    ChoiceList list = ReadCombo(combo);
    core::FillFromCommaList(list, text);
    ShowInCombo(list, combo);
}

std::int32_t GetSelectedId(const QComboBox& combo) {
    return core::GetSelectedId(ReadCombo(combo));
}

void SelectById(QComboBox& combo, std::int32_t id, NoMatch otherwise) {
    ChoiceList list = ReadCombo(combo);
    core::SelectById(list, id, otherwise);
    ShowSelection(list, combo);
}

void SelectByText(QComboBox& combo, std::string_view text, NoMatch otherwise) {
    ChoiceList list = ReadCombo(combo);
    core::SelectByText(list, text, otherwise);
    ShowSelection(list, combo);
}

void SelectOrName(QComboBox& combo, std::int32_t id, std::string_view name) {
    SelectById(combo, id);
    if (id == 0 || GetSelectedId(combo) != id) SelectByText(combo, name, {.setText = true});
}

void LoadPickList(QComboBox& combo) {
    ChoiceList list = ReadCombo(combo);
    core::LoadPickList(list, TagOf(combo));
    ShowInCombo(list, combo);
}

void SavePickList(const QComboBox& combo) {
    core::SavePickList(ReadCombo(combo), TagOf(combo));
}

} // namespace core::binding
