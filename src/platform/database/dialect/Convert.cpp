#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

bool IsNumber(FieldType type) {
    return type == FieldType::Integer || type == FieldType::Long || type == FieldType::Double ||
           type == FieldType::Currency || type == FieldType::Boolean;
}

std::string Call(std::string_view function, std::string_view argument) {
    return fmt::format("{}({})", function, argument);
}

std::string Call(std::string_view function, std::string_view argument, std::string_view field) {
    return fmt::format("{}({}, {})", function, argument, EngineText(field));
}

} // namespace

std::optional<FieldType> CommonType(std::optional<FieldType> a, std::optional<FieldType> b) {
    if (!a || a == b) return b;
    if (!b) return a;
    if (IsNumber(*a) && IsNumber(*b)) {
        for (const FieldType type : {FieldType::Currency, FieldType::Double, FieldType::Long}) {
            if (a == type || b == type) return type;
        }
        return FieldType::Integer;
    }
    if (a == FieldType::Memo || b == FieldType::Memo) return FieldType::Memo;
    return FieldType::Text;
}

std::string Translator::ToType(const Typed& value, FieldType type, std::string_view field) {
    if (value.parameter) parameters_[*value.parameter] = type;
    if (!value.type || value.type == type) return value.sql;
    switch (type) {
        case FieldType::Currency:
            return ToMoney(value, field);
        case FieldType::Integer:
            return Call("vestrel_integer", ToNumber(value), field);
        case FieldType::Long:
            if (value.Is(FieldType::Integer)) return value.sql;
            return Call("vestrel_long", ToNumber(value), field);
        case FieldType::Double:
            return ToNumber(value);
        case FieldType::Boolean:
            return ToCondition(value);
        case FieldType::Date:
            return ToDate(value);
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return ToText(value);
}

std::string Translator::ToNumber(const Typed& value) {
    if (value.parameter) parameters_[*value.parameter] = FieldType::Double;
    if (!value.type) return value.sql;
    switch (*value.type) {
        case FieldType::Currency:
            return fmt::format("({} / 10000.0)", value.sql);
        case FieldType::Boolean:
            return fmt::format("(-{})", value.sql);
        case FieldType::Text:
        case FieldType::Memo:
            break;
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Double:
        case FieldType::Date:
            return value.sql;
    }
    if (value.literal == nullptr) return Call("vestrel_number", value.sql);
    const std::string text = LiteralText(*value.literal);
    const auto number = TryParseNumber(text);
    if (!number) Fault(value.literal->position, fmt::format("'{}' is no number", text));
    return NumberToText(*number);
}

std::string Translator::ToMoney(const Typed& value, std::string_view field) {
    if (value.parameter) parameters_[*value.parameter] = FieldType::Currency;
    if (!value.type || value.Is(FieldType::Currency)) return value.sql;
    if (value.literal != nullptr && value.literal->kind != ExpressionKind::Boolean) {
        const std::string text = LiteralText(*value.literal);
        try {
            if (const auto amount = TryParseMoney(text)) return std::to_string(amount->Scaled());
        } catch (const OverflowError& error) {
            Fault(value.literal->position, error.what());
        }
        Fault(value.literal->position, fmt::format("'{}' is no amount of money", text));
    }
    if (value.IsWhole()) return fmt::format("({} * 10000)", value.sql);
    if (value.Is(FieldType::Boolean)) return fmt::format("({} * -10000)", value.sql);
    return Call("vestrel_money", value.sql, field);
}

std::string Translator::ToText(const Typed& value) {
    if (value.parameter) parameters_[*value.parameter] = FieldType::Text;
    if (!value.type || value.IsText()) return value.sql;
    switch (*value.type) {
        case FieldType::Currency:
            return Call("vestrel_money_text", value.sql);
        case FieldType::Boolean:
            return fmt::format("(CASE {} WHEN 1 THEN 'True' WHEN 0 THEN 'False' END)", value.sql);
        case FieldType::Date:
            return Call("vestrel_date_text", value.sql);
        case FieldType::Double:
            return Call("vestrel_number_text", value.sql);
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return fmt::format("CAST({} AS TEXT)", value.sql);
}

std::string Translator::ToDate(const Typed& value) {
    if (value.parameter) parameters_[*value.parameter] = FieldType::Date;
    if (!value.type || value.Is(FieldType::Date)) return value.sql;
    return value.IsText() ? Call("vestrel_date", value.sql) : ToNumber(value);
}

std::string Translator::ToCondition(const Typed& value) {
    if (value.parameter) parameters_[*value.parameter] = FieldType::Boolean;
    if (!value.type || value.Is(FieldType::Boolean)) return value.sql;
    if (!value.IsText()) return fmt::format("({} <> 0)", value.sql);
    if (value.literal == nullptr) return Call("vestrel_boolean", value.sql);
    const std::string text = LiteralText(*value.literal);
    if (EqualIgnoringCase(text, "True")) return "1";
    if (EqualIgnoringCase(text, "False")) return "0";
    return fmt::format("({} <> 0)", ToNumber(value));
}

std::string LiteralText(const Expression& literal) {
    std::string text;
    text.reserve(literal.text.size());
    for (std::size_t i = 0; i < literal.text.size(); ++i) {
        text += literal.text[i];
        const bool doubled = literal.kind == ExpressionKind::Text && literal.text[i] == '\'' &&
                             i + 1 < literal.text.size() && literal.text[i + 1] == '\'';
        if (doubled) ++i;
    }
    return text;
}

} // namespace platform::dialect
