#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/ChoiceList.h"
#include "core/Lists.h"

class QComboBox;

namespace core::binding {

// The list operations of the logic on a combo box, whose items carry their identifiers as data.
// None of them makes the combo box tell of a change.

/// The combo box as a list: the selected row is the current item while the box holds its text.
ChoiceList ReadCombo(const QComboBox& combo);
/// Shows a list. A text that is no row of it becomes a last row of identifier 0 in a box that can't
/// be typed in.
void ShowInCombo(const ChoiceList& list, QComboBox& combo);

/// As core::FillList, but no choice is lost: a record without a text is offered by its number, and
/// a selected record that the list doesn't offer (an account of another type) stays selected under
/// its name while it exists. A list whose kind or parent changes keeps nothing. If it throws, the
/// rows filled until then are there.
void FillList(int kind, QComboBox& combo, const FillOptions& options = {});
/// The same with a list that `fill` fills, of records of the kind that belong to a parent.
void FillListWith(int kind, std::int32_t parentId, QComboBox& combo,
                  const std::function<void(ChoiceList& list)>& fill);
/// Makes a record or code selectable that isn't among the rows: a record of the kind that the list
/// was filled with by its name, anything else by its number. Nothing for 0.
void OfferId(QComboBox& combo, std::int32_t id);
/// The same for a text.
void OfferText(QComboBox& combo, std::string_view text);
void FillFromCommaList(QComboBox& combo, std::string_view text);
std::int32_t GetSelectedId(const QComboBox& combo);
void SelectById(QComboBox& combo, std::int32_t id, NoMatch otherwise = {});
void SelectByText(QComboBox& combo, std::string_view text, NoMatch otherwise = {});
/// Selects the row of the identifier; one that isn't offered, and 0, is shown by its name.
void SelectOrName(QComboBox& combo, std::int32_t id, std::string_view name);

/// The remembered items of the field in the combo box's tag join the list; its text stays.
void LoadPickList(QComboBox& combo);
/// Remembers a typed text that isn't offered yet.
void SavePickList(const QComboBox& combo);

} // namespace core::binding
