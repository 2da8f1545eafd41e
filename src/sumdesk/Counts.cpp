#include "sumdesk/Counts.h"

#include "platform/values/Digits.h"
#include "platform/values/NumberFormat.h"

namespace sumdesk {

std::string Counted(std::int64_t count, std::string_view noun) {
    const auto digits = platform::DigitsOf(static_cast<double>(count));
    std::string text = platform::FormatDigits(digits, "#,##0") + " " + std::string(noun);
    if (count != 1 && count != -1) text += 's';
    return text;
}

std::string MoneyText(double amount) {
    return platform::FormatDigits(platform::DigitsOf(amount), "#,##0.00");
}

} // namespace sumdesk
