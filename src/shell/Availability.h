#pragma once

#include <cstdint>

namespace shell {

/// What the main window stands on, for its commands.
struct WindowState {
    std::int16_t kind = 0;
    /// The id in the selected row, 0 for none.
    std::int32_t selectedId = 0;
    /// Whether the records of the kind have an editor.
    bool hasEditor = false;
};

/// Which commands can be given.
struct Availability {
    bool add = false;
    /// Print the list.
    bool printGrid = false;
    bool edit = false;
    /// Delete, copy, print and pay: whatever needs a record.
    bool record = false;
};

/// The home page has no records, so none of them; a list can be added to and printed, and the rest
/// needs a selected record. Opening a record also needs an editor for its kind.
Availability EnableEditButtons(const WindowState& state);

/// Which menu items a view shows besides those that all views do.
struct ExtraItems {
    bool refreshSummary = false;
    bool payRent = false;
    bool payMortgage = false;
    bool copy = false;

    /// The line above the payments.
    bool Separator() const { return payRent || payMortgage; }
};

ExtraItems ExtraItemsOf(std::int16_t kind);

} // namespace shell
