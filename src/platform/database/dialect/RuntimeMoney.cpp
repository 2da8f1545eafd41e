#include <cmath>

#include <fmt/core.h>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace platform::dialect {

namespace {

using platform::Currency;

[[noreturn]] void ThrowTooLarge() {
    throw OverflowError("The amount of money is too large.");
}

/// A text or number as money; the second argument names the field that is to hold it.
void ReadMoney(const RuntimeCall& call) {
    if (!call.IsText(0)) return call.Answer(Currency::FromDouble(call.Real(0)));
    if (const auto amount = TryParseMoney(call.Text(0))) return call.Answer(*amount);
    const std::string field = call.Text(1).empty() ? "" : fmt::format("{}: ", call.Text(1));
    throw ConversionError(fmt::format("{}'{}' is no amount of money", field, call.Text(0)));
}

/// Where whole numbers overflow, the engine goes on in doubles: not with money.
void CheckExact(const RuntimeCall& call) {
    if (!call.IsWhole(0)) ThrowTooLarge();
    call.AnswerArgument(0);
}

void MoneyText(const RuntimeCall& call) {
    call.Answer(std::string_view(MoneyToText(call.Money(0))));
}

/// a / b of whole numbers, halves to even.
std::int64_t Quotient(std::int64_t a, std::int64_t b) {
    std::int64_t quotient = a / b;
    const std::int64_t rest = std::abs(a % b);
    const std::int64_t missing = b - rest;
    if (rest > missing || (rest == missing && quotient % 2 != 0)) quotient += a < 0 ? -1 : 1;
    return quotient;
}

void Average(const RuntimeCall& call) {
    if (call.Whole(1) != 0) call.Answer(Quotient(call.Whole(0), call.Whole(1)));
}

void Floor(const RuntimeCall& call) {
    const std::int64_t scaled = call.Whole(0);
    const std::int64_t rest = ((scaled % Currency::kScale) + Currency::kScale) % Currency::kScale;
    call.Answer(Currency::FromScaled(scaled) - Currency::FromScaled(rest));
}

void Fix(const RuntimeCall& call) {
    call.Answer(call.Whole(0) - call.Whole(0) % Currency::kScale);
}

void Round(const RuntimeCall& call) {
    std::int64_t step = Currency::kScale;
    for (std::int64_t digits = call.Whole(1); digits > 0 && step > 1; --digits)
        step /= 10;
    const std::int64_t steps = Quotient(call.Whole(0), step);
    call.Answer(Currency::FromScaled(step) * steps);
}

} // namespace

void AddMoneyFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<ReadMoney>>(connection, "vestrel_money", 2);
    AddFunction<RunUnlessNull<CheckExact>>(connection, "vestrel_exact", 1);
    AddFunction<RunUnlessNull<MoneyText>>(connection, "vestrel_money_text", 1);
    AddFunction<RunUnlessNull<Average>>(connection, "vestrel_quotient", 2);
    AddFunction<RunUnlessNull<Floor>>(connection, "vestrel_money_floor", 1);
    AddFunction<RunUnlessNull<Fix>>(connection, "vestrel_money_fix", 1);
    AddFunction<RunUnlessNull<Round>>(connection, "vestrel_money_round", 2);
}

} // namespace platform::dialect
