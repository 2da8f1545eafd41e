#pragma once

#include <string_view>

#include "core/ChoiceList.h"

namespace core {

// Lists of free text whose items the machine remembers. `tag` is the binding tag of the control: a
// sigil, and a field name that may follow a table and "."; the field's name is what the items
// are kept under. A tag without a name loads and saves nothing.

/// Adds the remembered items in their order.
void LoadPickList(ChoiceList& list, std::string_view tag);

/// Remembers the text in the list's box, without blanks around it, unless it is empty, a selected
/// item, or part of what is remembered already in any case ("Van" of "Vanity").
void SavePickList(const ChoiceList& list, std::string_view tag);

} // namespace core
