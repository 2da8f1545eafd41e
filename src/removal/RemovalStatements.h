#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace removal {

// Records of the analysis program that shares the books.
inline constexpr std::int16_t kAnalysis = 71;
inline constexpr std::int16_t kNoteAnalysis = 73;

/// The statements that remove a record of the kind, in order, each with its id as the only
/// parameter; none for a kind that isn't removed, or not only by statements (leases, owners,
/// transactions).
std::span<const std::string_view> StatementsToRemove(std::int16_t kind);

} // namespace removal
