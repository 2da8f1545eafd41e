#include "platform/values/Value.h"

#include <cmath>
#include <concepts>
#include <limits>

#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

template <typename T>
concept Whole =
    std::same_as<T, bool> || std::same_as<T, std::int16_t> || std::same_as<T, std::int32_t>;

[[noreturn]] void ThrowNull() {
    throw ConversionError("The value is empty.");
}

[[noreturn]] void ThrowJunk(const std::string& text, const char* wanted) {
    throw ConversionError("\"" + text + "\" is not " + wanted + ".");
}

// Returns the number of a value, except for money, which its callers take exactly.
struct ToNumber {
    double operator()(std::monostate) const { ThrowNull(); }
    double operator()(Whole auto value) const { return value; }
    double operator()(double value) const { return value; }
    double operator()(Currency value) const { return value.ToDouble(); }
    double operator()(Date value) const { return value.Serial(); }
    double operator()(const std::string& text) const {
        if (const auto number = TryParseNumber(text)) return *number;
        ThrowJunk(text, "a number");
    }
};

struct ToMoney {
    Currency operator()(std::monostate) const { ThrowNull(); }
    Currency operator()(Whole auto value) const { return Currency::FromUnits(value); }
    Currency operator()(double value) const { return Currency::FromDouble(value); }
    Currency operator()(Currency value) const { return value; }
    Currency operator()(Date value) const { return Currency::FromUnits(value.Serial()); }
    Currency operator()(const std::string& text) const {
        if (const auto amount = TryParseMoney(text)) return *amount;
        ThrowJunk(text, "an amount of money");
    }
};

struct ToBoolean {
    bool operator()(std::monostate) const { ThrowNull(); }
    bool operator()(Whole auto value) const { return value != 0; }
    bool operator()(double value) const { return value != 0; }
    bool operator()(Currency value) const { return !value.IsZero(); }
    bool operator()(Date value) const { return value.Serial() != 0; }
    bool operator()(const std::string& text) const {
        const auto word = Trim(text);
        if (EqualIgnoringCase(word, "True")) return true;
        if (EqualIgnoringCase(word, "False")) return false;
        if (const auto number = TryParseNumber(word)) return *number != 0;
        ThrowJunk(text, "True or False");
    }
};

struct ToDay {
    Date operator()(std::monostate) const { ThrowNull(); }
    Date operator()(Whole auto value) const { return Date::FromSerial(value); }
    Date operator()(double value) const {
        return Date::FromSerial(RoundToInt32(std::floor(value)));
    }
    Date operator()(Currency value) const { return (*this)(value.ToDouble()); }
    Date operator()(Date value) const { return value; }
    Date operator()(const std::string& text) const { return Date::Parse(text); }
};

struct ToText {
    std::string operator()(std::monostate) const { ThrowNull(); }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(std::int16_t value) const { return std::to_string(value); }
    std::string operator()(std::int32_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return NumberToText(value); }
    std::string operator()(Currency value) const { return MoneyToText(value); }
    std::string operator()(Date value) const { return value.ToText(); }
    std::string operator()(const std::string& text) const { return text; }
};

} // namespace

std::string_view FieldTypeName(FieldType type) {
    switch (type) {
        case FieldType::Integer:
            return "Integer";
        case FieldType::Long:
            return "Long";
        case FieldType::Double:
            return "Double";
        case FieldType::Currency:
            return "Currency";
        case FieldType::Date:
            return "Date";
        case FieldType::Boolean:
            return "Boolean";
        case FieldType::Text:
            return "Text";
        case FieldType::Memo:
            return "Memo";
    }
    return "Unknown";
}

Value::Value(Date value) {
    if (value.IsSet()) data_ = value;
}

bool Value::IsBlank() const {
    const auto* text = std::get_if<std::string>(&data_);
    return IsNull() || (text != nullptr && text->empty());
}

bool Value::AsBoolean() const {
    return std::visit(ToBoolean(), data_);
}

std::int16_t Value::AsInteger() const {
    if (const auto* held = std::get_if<std::int16_t>(&data_)) return *held;
    return RoundToInt16(AsDouble());
}

std::int32_t Value::AsLong() const {
    if (const auto* held = std::get_if<std::int32_t>(&data_)) return *held;
    return RoundToInt32(AsDouble());
}

double Value::AsDouble() const {
    return std::visit(ToNumber(), data_);
}

Currency Value::AsCurrency() const {
    return std::visit(ToMoney(), data_);
}

Date Value::AsDate() const {
    return std::visit(ToDay(), data_);
}

std::string Value::AsText() const {
    return std::visit(ToText(), data_);
}

Value Value::ConvertTo(FieldType type) const {
    if (IsNull()) return {};
    switch (type) {
        case FieldType::Integer:
            return AsInteger();
        case FieldType::Long:
            return AsLong();
        case FieldType::Double:
            return AsDouble();
        case FieldType::Currency:
            return AsCurrency();
        case FieldType::Date:
            return AsDate();
        case FieldType::Boolean:
            return AsBoolean();
        case FieldType::Text:
        case FieldType::Memo:
            return AsText();
    }
    return *this;
}

} // namespace platform
