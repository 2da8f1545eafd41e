#include "mortgages/DoubleList.h"

#include <charconv>

#include "platform/values/Conversions.h"
#include "platform/values/Text.h"

namespace mortgages {

namespace {

double LeadingNumber(std::string_view piece) {
    piece = platform::Trim(piece);
    if (piece.starts_with('+')) piece.remove_prefix(1);
    const std::string_view digits = piece.starts_with('-') ? piece.substr(1) : piece;
    // "inf" and "nan" are ordinary words here, not numbers.
    if (digits.empty() || (digits[0] != '.' && (digits[0] < '0' || digits[0] > '9'))) return 0;
    double number = 0;
    const auto result = std::from_chars(piece.data(), piece.data() + piece.size(), number);
    return result.ec == std::errc() ? number : 0;
}

} // namespace

std::string JoinDoubleList(const std::vector<double>& numbers) {
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0) text += ',';
        text += platform::NumberToText(numbers[i]);
    }
    return text;
}

std::size_t SplitDoubleList(std::string_view text, std::vector<double>& numbers) {
    numbers.clear();
    text = platform::Trim(text);
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        numbers.push_back(LeadingNumber(text.substr(0, comma)));
        if (comma == std::string_view::npos) break;
        text.remove_prefix(comma + 1);
        if (text.empty()) numbers.push_back(0);
    }
    return numbers.size();
}

} // namespace mortgages
