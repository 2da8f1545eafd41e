#include "core/binding/ComboList.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "core/Descriptions.h"
#include "core/PickLists.h"
#include "core/RecordKinds.h"
#include "core/binding/Tags.h"
#include "platform/qt/Text.h"

namespace core::binding {

namespace {

// The kind a list was filled with, so that a choice can be named later.
constexpr const char* kListKind = "listKind";
constexpr const char* kListParent = "listParent";

using platform::qt::FromScreen;
using platform::qt::ToScreen;

/// Selects the list's selected row without touching the rows.
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

/// The rows to fill a list with.
struct Filling {
    RecordKind kind = kNone;
    std::int32_t parentId = 0;
    std::int32_t selectedId = 0; ///< 0 for the present one
    bool keepText = false;       ///< nothing is selected
};

void Fill(const Filling& filling, QComboBox& combo,
          const std::function<void(ChoiceList& list)>& fill) {
    const bool isSameList = combo.property(kListKind).toInt() == KindNumber(filling.kind) &&
                            combo.property(kListParent).toInt() == filling.parentId;
    combo.setProperty(kListKind, KindNumber(filling.kind));
    combo.setProperty(kListParent, filling.parentId);
    ChoiceList list = ReadCombo(combo);
    std::int32_t wanted = filling.selectedId;
    if (wanted == 0 && isSameList) wanted = core::GetSelectedId(list);
    try {
        fill(list);
    } catch (...) {
        ShowInCombo(list, combo);
        throw;
    }
    const bool isLost = wanted != 0 && wanted != core::GetSelectedId(list) && !filling.keepText;
    if (isLost && RecordExists(filling.kind, wanted)) {
        list.Add(NameOfRecord(filling.kind, wanted), wanted);
        list.Select(list.Rows().size() - 1);
    }
    ShowInCombo(list, combo);
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

void FillList(RecordKind kind, QComboBox& combo, const FillOptions& options) {
    Fill({kind, options.parentId, options.selectedId, options.keepText}, combo,
         [&](ChoiceList& list) {
             FillOptions named = options;
             named.nameNulls = true;
             core::FillList(kind, list, named);
         });
}

void FillListWith(RecordKind kind, std::int32_t parentId, QComboBox& combo,
                  const std::function<void(ChoiceList& list)>& fill) {
    Fill({kind, parentId}, combo, fill);
}

void OfferId(QComboBox& combo, std::int32_t id) {
    if (id == 0 || combo.findData(id) >= 0) return;
    const QSignalBlocker quiet(combo);
    const auto kind = static_cast<RecordKind>(combo.property(kListKind).toInt());
    const QString name =
        kind == kNone ? QComboBox::tr("Unknown (%1)").arg(id) : ToScreen(NameOfRecord(kind, id));
    combo.addItem(name, id);
}

void OfferText(QComboBox& combo, std::string_view text) {
    const QString shown = ToScreen(text);
    if (text.empty() || combo.findText(shown, Qt::MatchFixedString) >= 0) return;
    const QSignalBlocker quiet(combo);
    combo.addItem(shown, 0);
}

void FillFromCommaList(QComboBox& combo, std::string_view text) {
    ChoiceList list = ReadCombo(combo);
    core::FillFromCommaList(list, text);
    ShowInCombo(list, combo);
}

void FillFromWords(QComboBox& combo, std::span<const std::string_view> words) {
    ChoiceList list = ReadCombo(combo);
    for (const std::string_view word : words)
        list.Add(word, 0);
    ShowInCombo(list, combo);
}

std::int32_t GetSelectedId(const QComboBox& combo) {
    return core::GetSelectedId(ReadCombo(combo));
}

void AddKind(QComboBox& combo, const QString& text, RecordKind kind) {
    combo.addItem(text, KindNumber(kind));
}

RecordKind SelectedKind(const QComboBox& combo) {
    return static_cast<RecordKind>(GetSelectedId(combo));
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
