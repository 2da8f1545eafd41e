#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace shell {

/// What a view remembers on this machine: the word of its view list and the two columns, by their
/// captions, that it is sorted by.
struct ViewState {
    std::string view = "All";
    std::string sortField;
    std::string sortOrder = "ASC";
    std::string prevField;
    std::string prevOrder = "ASC";

    friend bool operator==(const ViewState&, const ViewState&) = default;
};

/// The name that a view's state and column widths are stored under; empty for a kind without a
/// view.
std::string_view ViewTag(std::int16_t kind);

/// A word of order that is neither "ASC" nor "DESC" reads as "ASC".
ViewState LoadViewState(std::string_view tag);
void SaveViewState(std::string_view tag, const ViewState& state);

/// What a click on a column's caption makes of the sort. Another column becomes the first, in the
/// same order, and pushes the one before to the second place; the same column turns round.
void ClickHeader(ViewState& state, std::string_view caption);

/// The order for a row set, "[Rent] ASC, [Address] DESC"; empty for none. A column that the view
/// doesn't have (any more) is left out.
std::string SortText(const ViewState& state,
                     const std::function<bool(std::string_view caption)>& hasColumn);

} // namespace shell
