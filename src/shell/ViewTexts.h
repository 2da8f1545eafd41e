#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"
#include "shell/ViewState.h"
#include "shell/Views.h"

namespace shell {

/// Returns "Selected 12 Lease records sorted by Rent [ASC]"; the count is -1 if the statement
/// failed.
std::string StatusText(core::RecordKind kind, std::int64_t count, const ViewState& state);

/// Returns "3 of 12 shown" for a list that is narrowed by a search; empty if all of it is shown.
std::string NarrowedText(std::int64_t shown, std::int64_t count);

/// An empty list, for EmptyText.
struct EmptyView {
    core::RecordKind kind = core::kNone;
    /// The number of rows before the search narrowed them, as for StatusText.
    std::int64_t count = 0;
    std::string_view search;
    ViewFilter filter;
    /// Why the list can't be read, if known.
    std::string_view fault{};
};
/// Returns why a list shows no rows, and what to do about it.
std::string EmptyText(const EmptyView& view);

enum class BooksAre { Own, Sample };

/// Returns the title of the main window; a sample's title has the word "Sample" in it.
std::string WindowTitle(std::string_view companyName, BooksAre books);

} // namespace shell
