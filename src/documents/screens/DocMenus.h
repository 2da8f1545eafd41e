#pragma once

#include <cstdint>
#include <functional>

#include "core/RecordKinds.h"

class QMenu;

namespace documents::screens {

/// Adds an item for each template of a kind of record: "&1. Late Notice". `choose` is called with
/// the template's `IdDoc`. Returns whether there are any.
bool AddDocItems(QMenu& menu, core::RecordKind kind,
                 const std::function<void(std::int32_t idDoc)>& choose);

/// Adds to every record form the menu of letters for its record, filled from the list of templates
/// whenever the menu opens. `manage` opens that list.
void RegisterDocMenus(std::function<void()> manage);

} // namespace documents::screens
