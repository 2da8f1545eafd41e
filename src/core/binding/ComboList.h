#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "core/ChoiceList.h"
#include "core/Lists.h"
#include "core/RecordKinds.h"

class QComboBox;
class QString;

namespace core::binding {

// The logic's list operations on a combo box, whose items carry their ids as data. None of them
// emits the combo box's change signals.

/// Returns the combo box as a list: the current item is selected if the box shows its text.
ChoiceList ReadCombo(const QComboBox& combo);
/// Shows a list. Text that isn't in the list becomes a last row with id 0, in a box that can't be
/// typed in.
void ShowInCombo(const ChoiceList& list, QComboBox& combo);

/// Works like core::FillList, but keeps the choice: a record without a name is offered by its
/// number, and a selected record that the list doesn't offer (an account of another type) stays
/// selected under its name while it exists. If the list's kind or parent changes, no choice is
/// kept. If it throws, the rows read so far are in the list.
void FillList(RecordKind kind, QComboBox& combo, const FillOptions& options = {});
/// Does the same with rows added by `fill`: records of the kind that belong to a parent.
void FillListWith(RecordKind kind, std::int32_t parentId, QComboBox& combo,
                  const std::function<void(ChoiceList& list)>& fill);
/// Adds a record or code that isn't in the list: a record of the list's kind by its name, anything
/// else by its number. Does nothing for 0.
void OfferId(QComboBox& combo, std::int32_t id);
/// Does the same for text.
void OfferText(QComboBox& combo, std::string_view text);
void FillFromCommaList(QComboBox& combo, std::string_view text);
/// Adds words that are stored as they are shown, without ids.
void FillFromWords(QComboBox& combo, std::span<const std::string_view> words);
std::int32_t GetSelectedId(const QComboBox& combo);
/// Adds a row that chooses a record kind.
void AddKind(QComboBox& combo, const QString& text, RecordKind kind);
/// Returns the kind of the selected row; kNone if no row is selected.
RecordKind SelectedKind(const QComboBox& combo);
void SelectById(QComboBox& combo, std::int32_t id, NoMatch otherwise = {});
void SelectByText(QComboBox& combo, std::string_view text, NoMatch otherwise = {});
/// Selects the row with the id; shows `name` if the id is 0 or isn't in the list.
void SelectOrName(QComboBox& combo, std::int32_t id, std::string_view name);

/// Adds the remembered texts of the field in the combo box's tag; the box's own text stays.
void LoadPickList(QComboBox& combo);
/// Remembers typed text that isn't in the list yet.
void SavePickList(const QComboBox& combo);

} // namespace core::binding
