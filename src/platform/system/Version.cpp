#include "platform/system/Version.h"

#include <algorithm>

#include <fmt/core.h>

namespace platform {

std::string_view Version() {
    return VESTREL_VERSION;
}

bool PrintVersionIfAsked(std::string_view name, std::span<char* const> words) {
    const auto isAsked = [](const char* word) { return std::string_view(word) == "--version"; };
    if (!std::ranges::any_of(words, isAsked)) return false;
    fmt::print("{} {}\n", name, Version());
    return true;
}

} // namespace platform
