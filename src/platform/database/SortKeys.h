#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/database/Cell.h"

namespace platform {

/// One field of an order.
struct SortKey {
    std::size_t field = 0;
    bool descending = false;
};

/// An item of an order's text, as it is written there.
struct SortItem {
    std::string_view name;
    bool descending = false;
};

/// Takes "Field [ASC|DESC], ..." apart; names may be in square brackets, and may then hold
/// commas. Throws FieldError if a name is missing.
std::vector<SortItem> ParseSortText(std::string_view text);

/// Returns a number that orders values of a field of `type`, nulls first. For a text it holds the
/// first letters after `passed` others, ignoring case.
std::uint64_t SortNumber(const Cell& cell, FieldType type, std::size_t passed);

/// The letters that a number holds.
inline constexpr std::size_t kSortLetters = 7;

/// Returns whether this number may belong to several texts, which differ in later letters.
bool IsUndecided(std::uint64_t sortNumber, FieldType type);

} // namespace platform
