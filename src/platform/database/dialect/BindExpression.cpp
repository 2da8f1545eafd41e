#include <charconv>
#include <cstdint>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Errors.h"

namespace platform::dialect {

BoundPtr Binder::Bind(const Expression& expression) {
    const std::size_t position = expression.position;
    switch (expression.kind) {
        case ExpressionKind::Number:
            return BindNumber(expression);
        case ExpressionKind::Text:
            return MakeText(LiteralText(expression), position);
        case ExpressionKind::Date:
            return BindDate(expression);
        case ExpressionKind::Boolean: {
            const bool isTrue = expression.text[0] == 'T' || expression.text[0] == 't';
            return MakeNumber(isTrue ? "1" : "0", FieldType::Boolean, position);
        }
        case ExpressionKind::Null:
            return MakeBound(BoundKind::Null, {}, {}, position);
        case ExpressionKind::Parameter: {
            BoundPtr parameter = MakeBound(BoundKind::Parameter, {}, {}, position);
            parameter->parameter = expression.parameter;
            return parameter;
        }
        case ExpressionKind::Column:
            return BindColumn(expression);
        case ExpressionKind::Star:
            Fault(position, "'*' can't be used as a value");
        case ExpressionKind::Function:
            return BindFunction(expression);
        case ExpressionKind::Negate:
            return BindNegate(expression);
        case ExpressionKind::Not:
            return MakePrefix("NOT", FieldType::Boolean,
                              ToCondition(Bind(*expression.operands[0])));
        case ExpressionKind::Binary:
            return BindOperator(expression);
        case ExpressionKind::IsNull:
            return BindIsNull(expression);
        case ExpressionKind::Between:
            return BindBetween(expression);
        case ExpressionKind::In:
            return BindIn(expression);
        case ExpressionKind::InQuery:
            return BindInQuery(expression);
        case ExpressionKind::Exists:
        case ExpressionKind::Subquery:
            return BindSubquery(expression);
    }
    Fault(position, "Expected a value");
}

BoundPtr Binder::BindNumber(const Expression& expression) const {
    std::int32_t whole = 0;
    const char* const begin = expression.text.data();
    const char* const end = begin + expression.text.size();
    const auto read = std::from_chars(begin, end, whole);
    if (read.ec == std::errc() && read.ptr == end) {
        return MakeNumber(std::to_string(whole), FieldType::Long, expression.position);
    }
    double number = 0;
    if (std::from_chars(begin, end, number).ec == std::errc::result_out_of_range) {
        Fault(expression.position, fmt::format("{} is too large", expression.text));
    }
    std::string text(expression.text);
    // The number is too large for an integer, so the engine must read it as a double.
    if (text.find_first_of(".eE") == std::string::npos) text += ".0";
    return MakeNumber(std::move(text), FieldType::Double, expression.position);
}

BoundPtr Binder::BindDate(const Expression& expression) const {
    const auto date = Date::TryParse(expression.text);
    if (!date) Fault(expression.position, fmt::format("#{}# is not a valid date", expression.text));
    return MakeNumber(std::to_string(date->Serial()), FieldType::Date, expression.position);
}

std::string LiteralText(const Expression& literal) {
    std::string text;
    text.reserve(literal.text.size());
    for (std::size_t i = 0; i < literal.text.size(); ++i) {
        text += literal.text[i];
        if (literal.text[i] == literal.quote) ++i;
    }
    return text;
}

} // namespace platform::dialect
