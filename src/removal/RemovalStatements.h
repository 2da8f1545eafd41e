#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace removal {

// Records of the analysis program that shares the books.
inline constexpr std::int16_t kAnalysis = 71;
inline constexpr std::int16_t kNoteAnalysis = 73;

/// Returns the statements that remove a record of the kind, in order, each with its id as the only
/// parameter; none for a kind that isn't removed, or not by statements only (leases, owners,
/// transactions).
std::vector<std::string> StatementsToRemove(std::int16_t kind);

} // namespace removal
