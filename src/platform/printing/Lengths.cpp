#include "platform/printing/Lengths.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "platform/values/Text.h"

namespace platform {

namespace {

std::optional<double> TwipsPerUnit(std::string_view unit) {
    if (unit.empty()) return 1.0;
    if (EqualIgnoringCase(unit, "pt")) return kTwipsPerPoint;
    if (EqualIgnoringCase(unit, "in")) return kTwipsPerInch;
    if (EqualIgnoringCase(unit, "cm")) return kTwipsPerInch / 2.54;
    if (EqualIgnoringCase(unit, "mm")) return kTwipsPerInch / 25.4;
    return std::nullopt;
}

} // namespace

std::optional<Twips> ParseLength(std::string_view text) {
    text = Trim(text);
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc()) return std::nullopt;
    const auto unit = TwipsPerUnit(Trim(text.substr(static_cast<std::size_t>(end - text.data()))));
    if (!unit) return std::nullopt;
    const double twips = std::round(number * *unit);
    if (!(std::abs(twips) <= std::numeric_limits<Twips>::max())) return std::nullopt;
    return static_cast<Twips>(twips);
}

} // namespace platform
