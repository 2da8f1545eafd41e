#pragma once

#include <cstdint>
#include <string>

#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace platform {

// Readings of fields that a row may leave unset: 0, False, no day or an empty text then. What is
// set and can't be read so throws FieldError.

inline std::string TextOf(const Field& field) {
    return field.IsNull() ? std::string() : field.AsText();
}

inline std::int32_t IdOf(const Field& field) {
    return field.IsBlank() ? 0 : field.AsLong();
}

inline std::int16_t CountOf(const Field& field) {
    return field.IsBlank() ? std::int16_t{0} : field.AsInteger();
}

inline Currency MoneyOf(const Field& field) {
    return field.IsBlank() ? Currency() : field.AsCurrency();
}

inline bool FlagOf(const Field& field) {
    return !field.IsBlank() && field.AsBoolean();
}

inline Date DateOf(const Field& field) {
    return field.IsBlank() ? Date() : field.AsDate();
}

} // namespace platform
