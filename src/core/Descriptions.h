#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace core {

/// A line of text for a record, cut to `maxLength` characters unless that is 0; a building's is its
/// address alone in the short form. Empty for a kind without descriptions, when there is no such
/// record, when a part of the line is null, and on failure.
std::string GetDescription(int kind, std::int32_t id, std::size_t maxLength = 0,
                           bool shortForm = false);

} // namespace core
