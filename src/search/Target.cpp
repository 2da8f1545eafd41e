#include "search/Target.h"

#include <charconv>

#include <fmt/core.h>

namespace search {

namespace {

template <class Number>
bool Take(std::string_view& text, Number& number) {
    if (text.starts_with(' ')) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

} // namespace

std::string TargetText(const Target& target) {
    return fmt::format("{} {} {} {}", core::KindNumber(target.kind), target.id, target.parent1,
                       target.parent3);
}

std::optional<Target> ReadTarget(std::string_view text) {
    Target target;
    std::int16_t kind = 0;
    const bool isRead = Take(text, kind) && Take(text, target.id) && Take(text, target.parent1) &&
                        Take(text, target.parent3);
    if (!isRead || !text.empty()) return std::nullopt;
    target.kind = static_cast<core::RecordKind>(kind);
    return target;
}

} // namespace search
