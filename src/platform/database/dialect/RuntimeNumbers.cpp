#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

void ReadNumber(const RuntimeCall& call) {
    if (!call.IsText(0)) return call.AnswerArgument(0);
    if (const auto number = TryParseNumber(call.Text(0))) return call.Answer(*number);
    ThrowUnfit(call, "a number");
}

/// Returns null for text that isn't a number, so that it equals no number.
void ReadNumberIf(const RuntimeCall& call) {
    if (!call.IsText(0)) return call.AnswerArgument(0);
    if (const auto number = TryParseNumber(call.Text(0))) call.Answer(*number);
}

void NumberText(const RuntimeCall& call) {
    call.Answer(std::string_view(NumberToText(call.Real(0))));
}

template <class Stored>
void CheckWhole(const RuntimeCall& call) {
    const double whole = std::nearbyint(call.Real(0));
    if (!(whole >= std::numeric_limits<Stored>::min() &&
          whole <= std::numeric_limits<Stored>::max())) {
        ThrowUnfit(call, {});
    }
    call.Answer(static_cast<std::int64_t>(whole));
}

/// Rounds half to even, for integer division.
void Whole(const RuntimeCall& call) {
    const double whole = std::nearbyint(call.Real(0));
    if (!(std::fabs(whole) < 1e18)) throw OverflowError("The number is too large.");
    call.Answer(static_cast<std::int64_t>(whole));
}

void ReadBoolean(const RuntimeCall& call) {
    const std::string_view text = Trim(call.Text(0));
    if (EqualIgnoringCase(text, "True")) return call.Answer(std::int64_t{1});
    if (EqualIgnoringCase(text, "False")) return call.Answer(std::int64_t{0});
    const auto number = TryParseNumber(text);
    if (!number) ThrowUnfit(call, "True or False");
    call.Answer(std::int64_t{*number != 0});
}

void BooleanText(const RuntimeCall& call) {
    call.Answer(std::string_view(call.Whole(0) != 0 ? "True" : "False"));
}

void Power(const RuntimeCall& call) {
    const double power = std::pow(call.Real(0), call.Real(1));
    if (!std::isfinite(power)) throw OverflowError("The result isn't a number, or is too large.");
    call.Answer(power);
}
void Single(const RuntimeCall& call) {
    call.Answer(static_cast<double>(static_cast<float>(call.Real(0))));
}

void RoundNumber(const RuntimeCall& call) {
    constexpr std::int64_t kMostPlaces = 22; // 10 to a higher power isn't exact
    const std::int64_t places = call.Whole(1);
    if (places < 0) throw ConversionError("Round needs a number of decimals");
    if (call.IsWhole(0)) return call.AnswerArgument(0);
    const double number = call.Real(0);
    const double scale = std::pow(10.0, static_cast<double>(std::min(places, kMostPlaces)));
    const double scaled = number * scale;
    const double rounded = std::nearbyint(scaled) / scale;
    call.Answer(std::isfinite(rounded) ? rounded : number);
}

/// Returns the number at the beginning of the text, 0 if there is none.
void ReadLeadingNumber(const RuntimeCall& call) {
    const std::string_view text = Trim(call.Text(0));
    std::size_t end = text.find_first_not_of("+-0123456789.eE");
    for (end = std::min(end, text.size()); end > 0; --end) {
        if (text[end - 1] == 'e' || text[end - 1] == 'E') continue;
        if (const auto number = TryParseNumber(text.substr(0, end))) return call.Answer(*number);
    }
    call.Answer(0.0);
}

std::string FormatOf(const RuntimeCall& call, const Value& value) {
    return Format(call.IsNull(0) ? Value() : value, call.Text(1));
}

void FormatValue(const RuntimeCall& call) {
    const Value value = call.IsText(0) ? Value(call.Text(0)) : Value(call.Real(0));
    call.Answer(std::string_view(FormatOf(call, value)));
}

void FormatAmount(const RuntimeCall& call) {
    call.Answer(std::string_view(FormatOf(call, call.Money(0))));
}

void FormatDay(const RuntimeCall& call) {
    call.Answer(std::string_view(FormatOf(call, call.IsNull(0) ? Value() : Value(call.Day(0)))));
}

void FormatBoolean(const RuntimeCall& call) {
    call.Answer(std::string_view(FormatOf(call, call.Whole(0) != 0)));
}

} // namespace

void AddNumberFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<ReadNumber>>(connection, "vestrel_number", 1);
    AddFunction<RunUnlessNull<ReadNumber>>(connection, "vestrel_number", 2);
    AddFunction<RunUnlessNull<ReadNumberIf>>(connection, "vestrel_number_if", 1);
    AddFunction<RunUnlessNull<NumberText>>(connection, "vestrel_number_text", 1);
    AddFunction<RunUnlessNull<CheckWhole<std::int16_t>>>(connection, "vestrel_integer", 2);
    AddFunction<RunUnlessNull<CheckWhole<std::int32_t>>>(connection, "vestrel_long", 2);
    AddFunction<RunUnlessNull<Whole>>(connection, "vestrel_whole", 1);
    AddFunction<RunUnlessNull<ReadBoolean>>(connection, "vestrel_boolean", 1);
    AddFunction<RunUnlessNull<ReadBoolean>>(connection, "vestrel_boolean", 2);
    AddFunction<RunUnlessNull<BooleanText>>(connection, "vestrel_boolean_text", 1);
    AddFunction<RunUnlessNull<Power>>(connection, "vestrel_power", 2);
    AddFunction<RunUnlessNull<Single>>(connection, "vestrel_single", 1);
    AddFunction<RunUnlessNull<RoundNumber>>(connection, "vestrel_round", 2);
    AddFunction<RunUnlessNull<ReadLeadingNumber>>(connection, "vestrel_val", 1);
    AddFunction<FormatValue>(connection, "vestrel_format", 2);
    AddFunction<FormatAmount>(connection, "vestrel_format_money", 2);
    AddFunction<FormatDay>(connection, "vestrel_format_date", 2);
    AddFunction<FormatBoolean>(connection, "vestrel_format_boolean", 2);
}

} // namespace platform::dialect
