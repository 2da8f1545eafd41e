#include "platform/values/NumberScan.h"

#include <algorithm>

#include "platform/values/Text.h"

namespace platform {

namespace {

// An exponent beyond this is beyond every range, whatever digits it goes with.
constexpr std::int64_t kExponentLimit = 100'000;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool Take(std::string_view& text, char wanted) {
    if (text.empty() || text.front() != wanted) return false;
    text = Trim(text.substr(1));
    return true;
}

// "(", "-", "+" and "$" in front, ")" behind. What is left begins with the number itself.
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

// The digits with their commas and point; true when there was one digit at least.
bool TakeDigits(std::string_view& text, NumberScan& scan) {
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

} // namespace

std::optional<NumberScan> ScanNumber(std::string_view text) {
    NumberScan scan;
    text = Trim(text);
    std::int64_t exponent = 0;
    if (!TakeSigns(text, scan.negative) || !TakeDigits(text, scan) ||
        !TakeExponent(text, exponent) || !text.empty()) {
        return std::nullopt;
    }
    scan.pointAt += exponent;
    scan.digits.erase(scan.digits.find_last_not_of('0') + 1);
    if (scan.digits.empty()) scan.pointAt = 0;
    return scan;
}

} // namespace platform
