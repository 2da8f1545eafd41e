#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "search/Finder.h"

namespace search {

/// Orders the hits of a group: first those whose title begins as the search does, then those whose
/// title has all of its words, then the others; and keeps the first `most` of them.
void KeepBest(std::string_view text, std::size_t most, HitGroup& group);

/// Orders the groups by their first hits in the same way; otherwise they stay in their order.
void SortGroups(std::string_view text, std::vector<HitGroup>& groups);

} // namespace search
