#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// A length or position on paper: 1/1440 of an inch, 1/20 of a point.
using Twips = std::int32_t;

inline constexpr Twips kTwipsPerInch = 1440;
inline constexpr Twips kTwipsPerPoint = 20;

/// Reads "2880" (twips), "0.5in", "8pt", "2cm" or "12mm"; blanks around it don't matter. Returns
/// nothing for any other text.
std::optional<Twips> ParseLength(std::string_view text);

/// A colour as 0xBBGGRR: 255 is red, 0x800000 navy.
using PrintColor = std::uint32_t;

inline constexpr PrintColor kBlack = 0;

} // namespace platform
