#include "platform/printing/WholeText.h"

#include <algorithm>

#include "platform/printing/PrintTable.h"

namespace platform {

bool StaysInOneLine(std::string_view text) {
    constexpr std::string_view kDay = "mm/dd/yyyy";
    const auto isPart = [&, at = std::size_t{0}](char c) mutable {
        return kDay[at++] == '/' ? c == '/' : c >= '0' && c <= '9';
    };
    if (text.size() == kDay.size() && std::ranges::all_of(text, isPart)) return true;
    return LooksLikeAmount(text);
}

} // namespace platform
