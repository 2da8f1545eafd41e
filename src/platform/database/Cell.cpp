#include "platform/database/Cell.h"

#include <cmath>
#include <limits>
#include <utility>

#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

constexpr double kBeyondInt64 = 9'223'372'036'854'775'808.0; // 2 to the 63rd

bool IsWhole(double number) {
    return number >= -kBeyondInt64 && number < kBeyondInt64 && number == std::trunc(number);
}

Value ReadWhole(std::int64_t number, FieldType type) {
    if (type == FieldType::Integer && std::in_range<std::int16_t>(number)) {
        return static_cast<std::int16_t>(number);
    }
    if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

Value ReadDay(double serial) {
    return Date::FromSerial(RoundToInt32(std::floor(serial)));
}

Value ReadInteger(std::int64_t number, FieldType type) {
    switch (type) {
        case FieldType::Integer:
        case FieldType::Long:
            return ReadWhole(number, type);
        case FieldType::Double:
            return static_cast<double>(number);
        case FieldType::Currency:
            return Currency::FromScaled(number);
        case FieldType::Date:
            return ReadDay(static_cast<double>(number));
        case FieldType::Boolean:
            return number != 0;
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return std::to_string(number);
}

Value ReadReal(double number, FieldType type) {
    switch (type) {
        case FieldType::Integer:
        case FieldType::Long:
            if (IsWhole(number)) return ReadWhole(static_cast<std::int64_t>(number), type);
            return number;
        case FieldType::Double:
            return number;
        case FieldType::Currency:
            number = std::nearbyint(number);
            if (!IsWhole(number)) throw OverflowError("The amount is too large.");
            return Currency::FromScaled(static_cast<std::int64_t>(number));
        case FieldType::Date:
            return ReadDay(number);
        case FieldType::Boolean:
            return number != 0;
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return NumberToText(number);
}

Value ReadText(std::string_view text, FieldType type) {
    if (type == FieldType::Date) {
        if (const auto day = Date::TryParse(text)) return *day;
    }
    return text;
}

Cell StoreText(const Value& value, std::string& scratch) {
    if (const auto* held = std::get_if<std::string>(&value.Held())) return Cell::OfText(*held);
    scratch = value.AsText();
    return Cell::OfText(scratch);
}

} // namespace

Value ReadCell(const Cell& cell, FieldType type) {
    switch (cell.kind) {
        case Cell::Kind::Null:
            return {};
        case Cell::Kind::Integer:
            return ReadInteger(cell.integer, type);
        case Cell::Kind::Real:
            return ReadReal(cell.real, type);
        case Cell::Kind::Text:
        case Cell::Kind::Blob:
            return ReadText(cell.bytes, type);
    }
    return {};
}

Cell StoreCell(const Value& value, FieldType type, std::string& scratch) {
    if (value.IsNull()) return {};
    switch (type) {
        case FieldType::Integer:
            return Cell::OfInteger(value.AsInteger());
        case FieldType::Long:
            return Cell::OfInteger(value.AsLong());
        case FieldType::Double:
            return Cell::OfReal(value.AsDouble());
        case FieldType::Currency:
            return Cell::OfInteger(value.AsCurrency().Scaled());
        case FieldType::Boolean:
            return Cell::OfInteger(value.AsBoolean() ? 1 : 0);
        case FieldType::Date: {
            const Date day = value.AsDate();
            return day.IsSet() ? Cell::OfInteger(day.Serial()) : Cell();
        }
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return StoreText(value, scratch);
}

} // namespace platform
