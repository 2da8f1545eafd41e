#include <cmath>
#include <limits>

#include <fmt/core.h>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

double NumberOf(const RuntimeCall& call, int i) {
    return call.IsText(i) ? StrToDouble(call.Text(i)) : call.Real(i);
}

void ReadNumber(const RuntimeCall& call) {
    if (!call.IsText(0)) return call.AnswerArgument(0);
    call.Answer(StrToDouble(call.Text(0)));
}

void NumberText(const RuntimeCall& call) {
    call.Answer(std::string_view(NumberToText(call.Real(0))));
}

template <class Stored>
void CheckWhole(const RuntimeCall& call) {
    const double whole = std::nearbyint(call.Real(0));
    if (!(whole >= std::numeric_limits<Stored>::min() &&
          whole <= std::numeric_limits<Stored>::max())) {
        throw OverflowError(fmt::format("{} can't hold {}", call.Text(1), call.Text(0)));
    }
    call.Answer(static_cast<std::int64_t>(whole));
}

/// For a division of whole numbers: rounds half to even, and nothing by zero.
void Whole(const RuntimeCall& call) {
    const double whole = std::nearbyint(call.Real(0));
    if (!(std::fabs(whole) < 1e18)) throw OverflowError("The number is too large.");
    call.Answer(static_cast<std::int64_t>(whole));
}

void ReadBoolean(const RuntimeCall& call) {
    const std::string_view text = call.Text(0);
    if (EqualIgnoringCase(text, "True") || EqualIgnoringCase(text, "False")) {
        return call.Answer(std::int64_t{EqualIgnoringCase(text, "True")});
    }
    call.Answer(std::int64_t{NumberOf(call, 0) != 0});
}

void Floor(const RuntimeCall& call) {
    call.Answer(std::floor(call.Real(0)));
}
void Fix(const RuntimeCall& call) {
    call.Answer(std::trunc(call.Real(0)));
}
void Power(const RuntimeCall& call) {
    const double power = std::pow(call.Real(0), call.Real(1));
    if (!std::isfinite(power)) throw OverflowError("The power has no value.");
    call.Answer(power);
}
void Single(const RuntimeCall& call) {
    call.Answer(static_cast<double>(static_cast<float>(call.Real(0))));
}

void Round(const RuntimeCall& call) {
    const double scale = std::pow(10.0, static_cast<double>(call.Whole(1)));
    call.Answer(std::nearbyint(call.Real(0) * scale) / scale);
}

/// The number that a text begins with, 0 for none.
void ReadLeadingNumber(const RuntimeCall& call) {
    const std::string_view text = Trim(call.Text(0));
    std::size_t end = text.find_first_not_of("+-0123456789.eE");
    for (end = std::min(end, text.size()); end > 0; --end) {
        if (text[end - 1] == 'e' || text[end - 1] == 'E') continue;
        if (const auto number = TryParseNumber(text.substr(0, end))) return call.Answer(*number);
    }
    call.Answer(0.0);
}

Value ValueOf(const RuntimeCall& call) {
    if (call.IsNull(1)) return {};
    const std::string_view kind = call.Text(0);
    if (kind == "money") return call.Money(1);
    if (kind == "date") return call.Day(1);
    if (kind == "boolean") return call.Whole(1) != 0;
    if (call.IsText(1)) return call.Text(1);
    return call.Real(1);
}

void FormatValue(const RuntimeCall& call) {
    call.Answer(std::string_view(Format(ValueOf(call), call.Text(2))));
}

} // namespace

void AddNumberFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<ReadNumber>>(connection, "vestrel_number", 1);
    AddFunction<RunUnlessNull<NumberText>>(connection, "vestrel_number_text", 1);
    AddFunction<RunUnlessNull<CheckWhole<std::int16_t>>>(connection, "vestrel_integer", 2);
    AddFunction<RunUnlessNull<CheckWhole<std::int32_t>>>(connection, "vestrel_long", 2);
    AddFunction<RunUnlessNull<Whole>>(connection, "vestrel_whole", 1);
    AddFunction<RunUnlessNull<ReadBoolean>>(connection, "vestrel_boolean", 1);
    AddFunction<RunUnlessNull<Floor>>(connection, "vestrel_floor", 1);
    AddFunction<RunUnlessNull<Fix>>(connection, "vestrel_fix", 1);
    AddFunction<RunUnlessNull<Power>>(connection, "vestrel_power", 2);
    AddFunction<RunUnlessNull<Single>>(connection, "vestrel_single", 1);
    AddFunction<RunUnlessNull<Round>>(connection, "vestrel_round", 2);
    AddFunction<RunUnlessNull<ReadLeadingNumber>>(connection, "vestrel_val", 1);
    AddFunction<FormatValue>(connection, "vestrel_format", 3);
}

} // namespace platform::dialect
