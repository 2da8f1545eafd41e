#include <cmath>
#include <limits>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

/// Returns a call of `function` with the value, and with the name of the field that will hold it if
/// there is one.
BoundPtr CallFor(std::string_view field, std::string_view function, FieldType type,
                 BoundPtr value) {
    if (field.empty()) return MakeCall(function, type, std::move(value));
    return MakeCall(function, type, std::move(value), MakeText(std::string(field), 0));
}

/// Returns nothing for text that isn't a number, or a number that is too large.
std::optional<double> ParseNumber(std::string_view text) {
    try {
        return TryParseNumber(text);
    } catch (const OverflowError&) {
        return std::nullopt;
    }
}

BoundPtr Retyped(BoundPtr value, FieldType type) {
    value->type = type;
    return value;
}

} // namespace

void Binder::TellType(BoundExpression& value, FieldType type) {
    if (value.type) return;
    value.type = type;
    if (value.kind == BoundKind::Parameter) parameters_[value.parameter] = type;
}

void Binder::CannotHold(const BoundExpression& value, std::string_view field,
                        std::string_view wanted) const {
    const bool quoted = value.IsTextLiteral();
    const std::string shown = quoted ? fmt::format("'{}'", value.text) : value.text;
    if (field.empty()) Fault(value.position, fmt::format("{} is not {}", shown, wanted));
    Fault(value.position, fmt::format("{} can't hold {}", field, shown));
}

BoundPtr Binder::ToType(BoundPtr value, FieldType type, std::string_view field) {
    TellType(*value, type);
    switch (type) {
        case FieldType::Integer:
        case FieldType::Long:
            return ToWhole(std::move(value), type, field);
        case FieldType::Double:
            return ToReal(std::move(value), field);
        case FieldType::Currency:
            return ToMoney(std::move(value), field);
        case FieldType::Boolean:
            return ToCondition(std::move(value), field);
        case FieldType::Date:
            return ToDate(std::move(value));
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return ToText(std::move(value));
}

BoundPtr Binder::NumberOfLiteral(const BoundExpression& literal, std::string_view field) const {
    const auto number = ParseNumber(literal.text);
    if (!number) CannotHold(literal, field, "a number");
    const bool whole = *number == std::trunc(*number) &&
                       std::fabs(*number) <= std::numeric_limits<std::int32_t>::max();
    std::string text = NumberToText(*number);
    const bool plain = whole || text.find_first_of(".E") != std::string::npos;
    if (!plain) text += ".0";
    return MakeNumber(std::move(text), whole ? FieldType::Long : FieldType::Double,
                      literal.position);
}

BoundPtr Binder::ToNumber(BoundPtr value, std::string_view field) {
    TellType(*value, FieldType::Double);
    switch (*value->type) {
        case FieldType::Currency: {
            const std::size_t position = value->position;
            return MakeInfix("/", FieldType::Double, std::move(value),
                             MakeNumber("10000.0", FieldType::Double, position));
        }
        case FieldType::Boolean:
            if (value->kind == BoundKind::Number) {
                return MakeNumber(value->text == "0" ? "0" : "-1", FieldType::Long,
                                  value->position);
            }
            return MakePrefix("-", FieldType::Long, std::move(value));
        case FieldType::Text:
        case FieldType::Memo:
            if (value->IsTextLiteral()) return NumberOfLiteral(*value, field);
            return CallFor(field, "vestrel_number", FieldType::Double, std::move(value));
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Double:
        case FieldType::Date:
            break;
    }
    return value;
}

BoundPtr Binder::ToReal(BoundPtr value, std::string_view field) {
    value = ToNumber(std::move(value), field);
    if (!value->IsWhole()) return value;
    if (value->IsConstant()) return Retyped(std::move(value), FieldType::Double);
    BoundPtr real = MakeBound(BoundKind::Cast, FieldType::Double, "REAL", value->position);
    real->operands.push_back(std::move(value));
    return real;
}

BoundPtr Binder::ToWhole(BoundPtr value, FieldType type, std::string_view field) {
    TellType(*value, type);
    const bool fits = value->IsWhole() && (type == FieldType::Long || value->Is(type)) &&
                      (field.empty() || !value->isComputed);
    if (fits) return value;
    const std::string shown = value->text;
    value = ToNumber(std::move(value), field);
    if (!value->IsNumberLiteral()) {
        return CallFor(field, type == FieldType::Integer ? "vestrel_integer" : "vestrel_long", type,
                       std::move(value));
    }
    try {
        const double number = StrToDouble(value->text);
        const std::int32_t whole =
            type == FieldType::Integer ? RoundToInt16(number) : RoundToInt32(number);
        return MakeNumber(std::to_string(whole), type, value->position);
    } catch (const OverflowError&) {
        if (!field.empty()) CannotHold(*value, field, {});
        Fault(value->position, fmt::format("{} is too large", shown));
    }
}

BoundPtr Binder::ToMoney(BoundPtr value, std::string_view field) {
    TellType(*value, FieldType::Currency);
    if (value->Is(FieldType::Currency)) return value;
    if (value->IsNumberLiteral() || value->IsTextLiteral()) {
        try {
            const auto amount = TryParseMoney(value->text);
            if (!amount) CannotHold(*value, field, "an amount of money");
            return MakeNumber(std::to_string(amount->Scaled()), FieldType::Currency,
                              value->position);
        } catch (const OverflowError& error) {
            if (!field.empty()) CannotHold(*value, field, {});
            Fault(value->position, error.what());
        }
    }
    if (value->Is(FieldType::Boolean)) value = ToNumber(std::move(value));
    if (value->IsWhole()) {
        const bool isComputed = value->isComputed;
        const std::size_t position = value->position;
        value = MakeInfix("*", FieldType::Currency, std::move(value),
                          MakeNumber("10000", FieldType::Long, position));
        return isComputed ? Exact(std::move(value)) : std::move(value);
    }
    return CallFor(field, "vestrel_money", FieldType::Currency, std::move(value));
}

BoundPtr Binder::ToText(BoundPtr value) {
    TellType(*value, FieldType::Text);
    if (value->IsText()) return value;
    switch (*value->type) {
        case FieldType::Currency:
            return MakeCall("vestrel_money_text", FieldType::Text, std::move(value));
        case FieldType::Boolean:
            return MakeCall("vestrel_boolean_text", FieldType::Text, std::move(value));
        case FieldType::Date:
            return MakeCall("vestrel_date_text", FieldType::Text, std::move(value));
        case FieldType::Double:
            return MakeCall("vestrel_number_text", FieldType::Text, std::move(value));
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    BoundPtr text = MakeBound(BoundKind::Cast, FieldType::Text, "TEXT", value->position);
    text->operands.push_back(std::move(value));
    return text;
}

BoundPtr Binder::ToDate(BoundPtr value) {
    TellType(*value, FieldType::Date);
    if (value->Is(FieldType::Date)) return value;
    if (value->IsTextLiteral()) {
        if (Trim(value->text).empty()) {
            return MakeBound(BoundKind::Null, FieldType::Date, {}, value->position);
        }
        const auto date = Date::TryParse(value->text);
        if (!date) CannotHold(*value, {}, "a valid date");
        return MakeNumber(std::to_string(date->Serial()), FieldType::Date, value->position);
    }
    if (value->IsText()) return MakeCall("vestrel_date", FieldType::Date, std::move(value));
    return Retyped(ToNumber(std::move(value)), FieldType::Date);
}

BoundPtr Binder::ToCondition(BoundPtr value, std::string_view field) {
    TellType(*value, FieldType::Boolean);
    if (value->Is(FieldType::Boolean)) return value;
    if (value->IsTextLiteral()) {
        const bool isTrue = EqualIgnoringCase(value->text, "True");
        if (isTrue || EqualIgnoringCase(value->text, "False")) {
            return MakeNumber(isTrue ? "1" : "0", FieldType::Boolean, value->position);
        }
        if (!ParseNumber(value->text)) CannotHold(*value, field, "True or False");
        value = NumberOfLiteral(*value, field);
    } else if (value->IsText()) {
        return CallFor(field, "vestrel_boolean", FieldType::Boolean, std::move(value));
    }
    const std::size_t position = value->position;
    return MakeInfix("<>", FieldType::Boolean, std::move(value),
                     MakeNumber("0", FieldType::Long, position));
}

} // namespace platform::dialect
