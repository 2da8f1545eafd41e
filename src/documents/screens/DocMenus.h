#pragma once

#include <cstdint>
#include <functional>

class QMenu;

namespace documents::screens {

/// Adds an item for each template of a kind of record: "&1. Late Notice". `choose` is called with
/// the template's `IdDoc`. Returns whether there was one.
bool AddDocItems(QMenu& menu, std::int16_t kind,
                 const std::function<void(std::int32_t idDoc)>& choose);

/// Gives every record form the menu of the letters that can be made of its record: what the list
/// of templates holds for it when the menu opens. `manage` opens that list.
void RegisterDocMenus(std::function<void()> manage);

} // namespace documents::screens
