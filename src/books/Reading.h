#pragma once

#include <cstdint>
#include <string>

#include "platform/database/Recordset.h"

namespace books {

// Readings of fields that a row may leave unset: 0, False or an empty text then. What can't be read
// is a FieldError.

inline std::int16_t ShortOr0(const platform::Field& field) {
    return field.IsBlank() ? std::int16_t{0} : field.AsInteger();
}
inline std::int32_t LongOr0(const platform::Field& field) {
    return field.IsBlank() ? 0 : field.AsLong();
}
inline platform::Currency MoneyOr0(const platform::Field& field) {
    return field.IsBlank() ? platform::Currency() : field.AsCurrency();
}
inline bool BooleanOf(const platform::Field& field) {
    return !field.IsBlank() && field.AsBoolean();
}
inline std::string TextOf(const platform::Field& field) {
    return field.IsNull() ? std::string() : field.AsText();
}

} // namespace books
