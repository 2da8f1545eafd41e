#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/ViewState.h"
#include "shell/Views.h"

namespace shell {

/// "Selected 12 Lease records sorted by Rent [ASC]"; -1 records stand for a statement that failed.
std::string StatusText(std::int16_t kind, std::int64_t count, const ViewState& state);

/// "3 of 12 shown", of a list that is narrowed; empty when all of it is shown.
std::string NarrowedText(std::int64_t shown, std::int64_t count);

/// Why a list shows no row, and what to do about it.
struct EmptyView {
    std::int16_t kind = 0;
    /// As for StatusText, of the rows before the search narrowed them.
    std::int64_t count = 0;
    std::string_view search;
    ViewFilter filter;
};
std::string EmptyText(const EmptyView& view);

/// The title of the main window.
std::string WindowTitle(std::string_view companyName);

} // namespace shell
