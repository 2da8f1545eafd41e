#include "platform/printing/FontMetrics.h"

#include <algorithm>

namespace platform {

FaceId FixedMetrics::Face(std::string_view, Weight weight, Slant) {
    return weight == Weight::Bold ? 1 : 0;
}

FaceHeights FixedMetrics::Heights(FaceId) const {
    return {.ascent = 0.9, .descent = 0.3};
}

double FixedMetrics::Width(FaceId face, std::string_view text) const {
    const auto characters = std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
    return static_cast<double>(characters) * (face == 1 ? 0.6 : 0.5);
}

} // namespace platform
