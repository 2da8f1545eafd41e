#pragma once

#include <cstdint>
#include <string>

#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"

namespace mortgages {

// Readings of fields that rows from elsewhere may leave null.

inline std::string TextOf(const platform::Field& field) {
    return field.IsNull() ? std::string() : field.AsText();
}

inline std::int32_t IdOf(const platform::Field& field) {
    return field.IsNull() ? 0 : field.AsLong();
}

inline std::int16_t CountOf(const platform::Field& field) {
    return field.IsNull() ? std::int16_t{0} : field.AsInteger();
}

inline platform::Currency MoneyOf(const platform::Field& field) {
    return field.IsNull() ? platform::Currency() : field.AsCurrency();
}

/// Unset for a null and for an empty text; a text that is no day is a FieldError.
inline platform::Date DateOf(const platform::Field& field) {
    return field.IsBlank() ? platform::Date() : field.AsDate();
}

} // namespace mortgages
