#include "platform/database/dialect/Binder.h"
#include "platform/values/Digits.h"

namespace platform::dialect {

namespace {

constexpr std::int64_t kDecimals = 4;
// Every number of this many digits fits into 64 bits.
constexpr std::int64_t kSafeDigits = 18;

/// Returns the number times 10,000 in the engine's SQL; an integer if it has no decimals left.
std::string Scaled(const Digits& number) {
    if (number.digits.empty()) return "0";
    const auto count = static_cast<std::int64_t>(number.digits.size());
    const std::int64_t point = number.pointAt + kDecimals;
    std::string text = number.negative ? "-" : "";
    if (point > kSafeDigits || point < -kSafeDigits) {
        return text + "0." + number.digits + "e" + std::to_string(point);
    }
    if (point <= 0) {
        return text + "0." + std::string(static_cast<std::size_t>(-point), '0') + number.digits;
    }
    if (point >= count) {
        return text + number.digits + std::string(static_cast<std::size_t>(point - count), '0');
    }
    const auto whole = static_cast<std::size_t>(point);
    return text + number.digits.substr(0, whole) + "." + number.digits.substr(whole);
}

} // namespace

BoundPtr Binder::ToExactMoney(BoundPtr value) const {
    const auto digits = ScanDigits(value->text);
    if (!digits) CannotHold(*value, {}, "an amount of money");
    return MakeNumber(Scaled(*digits), FieldType::Currency, value->position);
}

} // namespace platform::dialect
