#pragma once

#include <cstdint>
#include <string_view>

#include "core/RecordKinds.h"

namespace shell {

/// The state of the main window that its commands depend on.
struct WindowState {
    core::RecordKind kind = core::kNone;
    /// The id in the selected row; 0 unless exactly one row is selected.
    std::int32_t selectedId = 0;
    int selectedRows = 0;
    /// Whether the records of the kind have an editor.
    bool hasEditor = false;
    /// Whether the books are open only to be read.
    bool readOnly = false;
};

/// Why commands are disabled, in a sentence for their tooltips; empty for those that are enabled.
struct Availability {
    std::string_view add;
    /// For commands on the whole list: print, find.
    std::string_view list;
    std::string_view edit;
    /// For commands that need one record and don't change it: print, pictures.
    std::string_view record;
    /// For commands that need one record and change the books: delete, pay.
    std::string_view change;
    /// For commands that take one selected record or several: copying rows, letters.
    std::string_view rows;
};

/// Returns which commands are available. The home page has no records, so none of them; a list can
/// be added to and printed; the others need one selected record. Opening a record also needs an
/// editor for its kind, and books that can only be read can't be changed.
Availability EnableEditButtons(const WindowState& state);

/// The menu items that appear only in some views.
struct ExtraItems {
    bool refreshSummary = false;
    bool payRent = false;
    bool payMortgage = false;
    bool copy = false;

    /// Returns whether the separator above the payments is shown.
    bool Separator() const { return payRent || payMortgage; }
};

ExtraItems ExtraItemsOf(core::RecordKind kind);

} // namespace shell
