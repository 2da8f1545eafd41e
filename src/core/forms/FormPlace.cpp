#include "core/forms/FormPlace.h"

#include <algorithm>
#include <cstdint>

namespace core::forms {

namespace {

constexpr std::int32_t kHoldWidth = 80;
constexpr std::int32_t kHoldHeight = 24;

// Returns how far two ranges overlap. Calculated in 64 bits, since stored numbers may be anything.
std::int64_t Overlap(std::int64_t aStart, std::int64_t aLength, std::int64_t bStart,
                     std::int64_t bLength) {
    return std::min(aStart + aLength, bStart + bLength) - std::max(aStart, bStart);
}

bool CanBeHeld(const FormRectangle& form, const FormRectangle& screen) {
    return Overlap(form.left, form.width, screen.left, screen.width) >= kHoldWidth &&
           Overlap(form.top, kHoldHeight, screen.top, screen.height) >= kHoldHeight;
}

std::int64_t Distance(const FormRectangle& form, const FormRectangle& screen) {
    return std::max<std::int64_t>(0, -Overlap(form.left, form.width, screen.left, screen.width)) +
           std::max<std::int64_t>(0, -Overlap(form.top, form.height, screen.top, screen.height));
}

std::int32_t Into(std::int32_t start, std::int32_t length, std::int32_t screenStart,
                  std::int32_t screenLength) {
    return std::clamp(start, screenStart, screenStart + std::max(0, screenLength - length));
}

} // namespace

FormRectangle RescuedPlace(const FormRectangle& wanted, const std::vector<FormRectangle>& screens) {
    const auto holds = [&](const FormRectangle& screen) { return CanBeHeld(wanted, screen); };
    if (screens.empty() || std::ranges::any_of(screens, holds)) return wanted;
    const FormRectangle& nearest = *std::ranges::min_element(
        screens, {}, [&](const FormRectangle& screen) { return Distance(wanted, screen); });
    FormRectangle place = wanted;
    place.width = std::min(wanted.width, nearest.width);
    place.height = std::min(wanted.height, nearest.height);
    place.left = Into(wanted.left, place.width, nearest.left, nearest.width);
    place.top = Into(wanted.top, place.height, nearest.top, nearest.height);
    return place;
}

} // namespace core::forms
