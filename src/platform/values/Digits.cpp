#include "platform/values/Digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "platform/values/Text.h"

namespace platform {

namespace {

// An exponent beyond this is out of every range, whatever its digits.
constexpr std::int64_t kExponentLimit = 100'000;

bool Take(std::string_view& text, char wanted) {
    if (text.empty() || text.front() != wanted) return false;
    text = Trim(text.substr(1));
    return true;
}

// Takes "(", "-", "+" and "$" before the number and ")" after it. The rest begins with the number
// itself.
bool TakeSigns(std::string_view& text, bool& negative) {
    if (Take(text, '(')) {
        if (text.empty() || text.back() != ')') return false;
        text = Trim(text.substr(0, text.size() - 1));
        negative = true;
        Take(text, '$');
        return true;
    }
    const bool dollar = Take(text, '$');
    negative = Take(text, '-');
    if (!negative) Take(text, '+');
    if (!dollar) Take(text, '$');
    return true;
}

// Takes the digits with their commas and point; returns true if there was at least one digit.
bool TakeDigits(std::string_view& text, Digits& scan) {
    bool any = false;
    bool point = false;
    std::size_t used = 0;
    for (; used < text.size(); ++used) {
        const char c = text[used];
        if (IsDigit(c)) {
            any = true;
            if (scan.digits.empty() && c == '0') {
                if (point) --scan.pointAt;
                continue;
            }
            scan.digits += c;
            if (!point) ++scan.pointAt;
        } else if (c == '.' && !point) {
            point = true;
        } else if (c != ',' || point || !any) {
            break;
        }
    }
    text.remove_prefix(used);
    return any;
}

bool TakeExponent(std::string_view& text, std::int64_t& exponent) {
    if (text.empty() || (text.front() != 'e' && text.front() != 'E')) return true;
    text.remove_prefix(1);
    const bool down = !text.empty() && text.front() == '-';
    if (down || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    if (text.empty()) return false;
    std::size_t used = 0;
    for (; used < text.size() && IsDigit(text[used]); ++used) {
        exponent = std::min(exponent * 10 + (text[used] - '0'), kExponentLimit);
    }
    text.remove_prefix(used);
    if (down) exponent = -exponent;
    return used > 0;
}

void DropTrailingZeros(Digits& number) {
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    if (number.digits.empty()) number.pointAt = 0;
}

} // namespace

Digits DigitsOf(double number) {
    Digits result{.negative = number < 0, .digits = {}, .pointAt = 0};
    if (number == 0) return result;
    // "d.ddde+xx", the shortest form that reads back the same.
    char text[32];
    const char* const end =
        std::to_chars(text, text + sizeof text, std::fabs(number), std::chars_format::scientific)
            .ptr;
    const char* const mark = std::find(static_cast<const char*>(text), end, 'e');
    const char* const exponent = mark + (mark[1] == '+' ? 2 : 1);
    std::from_chars(exponent, end, result.pointAt);
    ++result.pointAt;
    std::copy_if(static_cast<const char*>(text), mark, std::back_inserter(result.digits), IsDigit);
    DropTrailingZeros(result);
    return result;
}

Digits DigitsOf(Currency amount) {
    const std::int64_t scaled = amount.Scaled();
    if (scaled == 0) return {};
    const auto bits = static_cast<std::uint64_t>(scaled);
    Digits result{.negative = scaled < 0,
                  .digits = std::to_string(scaled < 0 ? 0 - bits : bits),
                  .pointAt = 0};
    result.pointAt = static_cast<std::int64_t>(result.digits.size()) - 4;
    DropTrailingZeros(result);
    return result;
}

void RoundDigits(Digits& number, std::int64_t places) {
    std::string& digits = number.digits;
    const std::int64_t kept = number.pointAt + places;
    if (kept >= static_cast<std::int64_t>(digits.size())) return;
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.erase(static_cast<std::size_t>(std::max<std::int64_t>(kept, 0)));
    if (up) {
        while (!digits.empty() && digits.back() == '9')
            digits.pop_back();
        if (digits.empty()) {
            digits.push_back('1');
            ++number.pointAt;
        } else {
            ++digits.back();
        }
    }
    DropTrailingZeros(number);
}

std::optional<Digits> ScanDigits(std::string_view text) {
    Digits scan;
    text = Trim(text);
    std::int64_t exponent = 0;
    if (!TakeSigns(text, scan.negative) || !TakeDigits(text, scan) ||
        !TakeExponent(text, exponent) || !text.empty()) {
        return std::nullopt;
    }
    scan.pointAt += exponent;
    DropTrailingZeros(scan);
    return scan;
}

} // namespace platform
