#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"
#include "platform/registry/Registry.h"

namespace shell {

/// The state of a view, stored on this machine: the chosen status and the captions of the two
/// columns that it is sorted by.
struct ViewState {
    std::string view = "All";
    std::string sortField;
    std::string sortOrder = "ASC";
    std::string prevField;
    std::string prevOrder = "ASC";

    friend bool operator==(const ViewState&, const ViewState&) = default;
};

/// Returns the name that a view's state and column widths are stored under; empty for a kind
/// without a view.
std::string_view ViewTag(core::RecordKind kind);

/// Loads the state of a view. An order that is neither "ASC" nor "DESC" counts as "ASC".
ViewState LoadViewState(std::string_view tag);
/// Returns the registry values of a view's state.
std::vector<platform::RegistryText> ViewStateTexts(std::string_view tag, const ViewState& state);
void SaveViewState(std::string_view tag, const ViewState& state);

/// Changes the sort as a click on a column's caption does. Another column becomes the first, in the
/// same order, and moves the previous one to second place; the same column reverses its order.
void ClickHeader(ViewState& state, std::string_view caption);

/// Returns the order for a row set, "[Rent] ASC, [Address] DESC"; empty if the view isn't sorted. A
/// column that the view doesn't have is left out.
std::string SortText(const ViewState& state,
                     const std::function<bool(std::string_view caption)>& hasColumn);

} // namespace shell
