#include "core/ShownNumber.h"

#include <array>
#include <charconv>

namespace core {

double ShownNumber(double number) {
    constexpr int kShownDigits = 15;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::general, kShownDigits)
                         .ptr;
    double shown = number;
    std::from_chars(digits.data(), end, shown);
    return shown;
}

} // namespace core
