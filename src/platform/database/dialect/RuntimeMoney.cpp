#include <cmath>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace platform::dialect {

namespace {

using platform::Currency;

constexpr const char* kTooLarge = "The amount of money is too large.";

/// Reads text or a number as money.
void ReadMoney(const RuntimeCall& call) {
    if (!call.IsText(0)) {
        try {
            return call.Answer(Currency::FromDouble(call.Real(0)));
        } catch (const OverflowError&) {
            if (call.Count() < 2) throw;
            ThrowUnfit(call, {});
        }
    }
    if (const auto amount = TryParseMoney(call.Text(0))) return call.Answer(*amount);
    ThrowUnfit(call, "an amount of money");
}

/// Fails if the result isn't exact: the engine continues in doubles if integers overflow.
void CheckExact(const RuntimeCall& call) {
    if (!call.IsWhole(0)) throw OverflowError(kTooLarge);
    call.AnswerArgument(0);
}

void MoneyText(const RuntimeCall& call) {
    call.Answer(std::string_view(MoneyToText(call.Money(0))));
}

/// Returns a / b rounded half to even; b must be positive.
std::int64_t Quotient(std::int64_t a, std::int64_t b) {
    std::int64_t quotient = a / b;
    const std::int64_t rest = std::abs(a % b);
    const std::int64_t missing = b - rest;
    if (rest > missing || (rest == missing && quotient % 2 != 0)) quotient += a < 0 ? -1 : 1;
    return quotient;
}

/// The sum and count for a group's average.
struct Total {
    std::int64_t sum;
    std::int64_t count;
    bool failed;
};

void AddAmount(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
    auto* total = static_cast<Total*>(sqlite3_aggregate_context(context, sizeof(Total)));
    if (total == nullptr) return sqlite3_result_error_nomem(context);
    const std::int64_t amount = sqlite3_value_int64(arguments[0]);
    total->failed = __builtin_add_overflow(total->sum, amount, &total->sum) || total->failed;
    ++total->count;
}

void AnswerAverage(sqlite3_context* context) {
    const auto* total = static_cast<const Total*>(sqlite3_aggregate_context(context, 0));
    if (total == nullptr) return sqlite3_result_null(context);
    if (total->failed) return sqlite3_result_error(context, kTooLarge, -1);
    sqlite3_result_int64(context, Quotient(total->sum, total->count));
}

void Floor(const RuntimeCall& call) {
    const std::int64_t scaled = call.Whole(0);
    const std::int64_t rest = ((scaled % Currency::kScale) + Currency::kScale) % Currency::kScale;
    call.Answer(Currency::FromScaled(scaled) - Currency::FromScaled(rest));
}

void Fix(const RuntimeCall& call) {
    call.Answer(call.Whole(0) - call.Whole(0) % Currency::kScale);
}

void RoundMoney(const RuntimeCall& call) {
    if (call.Whole(1) < 0) throw ConversionError("Round needs a number of decimals");
    std::int64_t step = Currency::kScale;
    for (std::int64_t digits = call.Whole(1); digits > 0 && step > 1; --digits)
        step /= 10;
    const std::int64_t steps = Quotient(call.Whole(0), step);
    call.Answer(Currency::FromScaled(step) * steps);
}

} // namespace

void AddMoneyFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<ReadMoney>>(connection, "vestrel_money", 1);
    AddFunction<RunUnlessNull<ReadMoney>>(connection, "vestrel_money", 2);
    AddFunction<RunUnlessNull<CheckExact>>(connection, "vestrel_exact", 1);
    AddFunction<RunUnlessNull<MoneyText>>(connection, "vestrel_money_text", 1);
    sqlite3_create_function_v2(connection, "vestrel_money_avg", 1, SQLITE_UTF8, nullptr, nullptr,
                               AddAmount, AnswerAverage, nullptr);
    AddFunction<RunUnlessNull<Floor>>(connection, "vestrel_money_floor", 1);
    AddFunction<RunUnlessNull<Fix>>(connection, "vestrel_money_fix", 1);
    AddFunction<RunUnlessNull<RoundMoney>>(connection, "vestrel_money_round", 2);
}

} // namespace platform::dialect
