#include "core/FormPosition.h"

#include <array>
#include <exception>

#include <fmt/core.h>

#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "platform/values/Conversions.h"

namespace core {

namespace {

struct StoredPlace {
    FormRectangle place;
    bool hasSize = false;
};

/// Reads "left,top,width,height"; left and top without the others are a place too. Returns nothing
/// for any other text.
std::optional<StoredPlace> ParsePlace(std::string_view text) {
    std::array<std::int32_t, 4> numbers = {};
    std::size_t count = 0;
    for (std::string_view rest = text; count < numbers.size(); ++count) {
        const auto comma = rest.find(',');
        const auto number = platform::TryParseNumber(rest.substr(0, comma));
        if (!number) return std::nullopt;
        numbers.at(count) = platform::RoundToInt32(*number);
        if (comma == std::string_view::npos) {
            ++count;
            break;
        }
        rest.remove_prefix(comma + 1);
    }
    if (count < 2) return std::nullopt;
    const auto [left, top, width, height] = numbers;
    return StoredPlace{{left, top, width, height}, width > 0 && height > 0};
}

WindowState StateOf(std::int32_t number) {
    switch (number) {
        case 1:
            return WindowState::Minimized;
        case 2:
            return WindowState::Maximized;
        default:
            return WindowState::Normal;
    }
}

} // namespace

FormPlacement RestoreForm(std::string_view formName, FormSizing sizing) {
    FormPlacement placement;
    placement.state = StateOf(GetRegNumber(kFormStateKey, formName, 0));
    if (placement.state != WindowState::Normal) return placement;
    try {
        if (const auto stored = ParsePlace(GetRegString(kFormPositionKey, formName, ""))) {
            placement.place = stored->place;
            placement.appliesSize = stored->hasSize && sizing == FormSizing::Resizable;
        }
    } catch (const std::exception&) {
        // A number too large for a place is not a place.
    }
    return placement;
}

void SaveForm(std::string_view formName, WindowState state, const FormRectangle& place) {
    if (state == WindowState::Normal) {
        SetRegString(kFormPositionKey, formName,
                     fmt::format("{},{},{},{}", place.left, place.top, place.width, place.height));
    }
    SetRegNumber(kFormStateKey, formName, static_cast<std::int32_t>(state));
}

} // namespace core
