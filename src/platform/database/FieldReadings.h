#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <type_traits>

#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace platform {

/// Returns a field, or a value, as a T. Throws FieldError (ConversionError for a value) if it is
/// unset or can't be read as one.
template <class T, class Source>
T As(const Source& source) {
    if constexpr (std::is_enum_v<T>) {
        return static_cast<T>(As<std::underlying_type_t<T>>(source));
    } else if constexpr (std::same_as<T, bool>) {
        return source.AsBoolean();
    } else if constexpr (std::same_as<T, std::int16_t>) {
        return source.AsInteger();
    } else if constexpr (std::same_as<T, std::int32_t>) {
        return source.AsLong();
    } else if constexpr (std::same_as<T, double>) {
        return source.AsDouble();
    } else if constexpr (std::same_as<T, Currency>) {
        return source.AsCurrency();
    } else if constexpr (std::same_as<T, Date>) {
        return source.AsDate();
    } else {
        static_assert(std::same_as<T, std::string>);
        return source.AsText();
    }
}

/// Does the same, but returns 0, False, no day or an empty text if it is unset.
template <class T, class Source>
T AsOr0(const Source& source) {
    return source.IsBlank() ? T() : As<T>(source);
}

inline std::string TextOf(const Field& field) {
    return AsOr0<std::string>(field);
}
inline std::int32_t IdOf(const Field& field) {
    return AsOr0<std::int32_t>(field);
}
inline std::int16_t ShortOf(const Field& field) {
    return AsOr0<std::int16_t>(field);
}
inline double NumberOf(const Field& field) {
    return AsOr0<double>(field);
}
inline Currency MoneyOf(const Field& field) {
    return AsOr0<Currency>(field);
}
inline bool FlagOf(const Field& field) {
    return AsOr0<bool>(field);
}
inline Date DateOf(const Field& field) {
    return AsOr0<Date>(field);
}

} // namespace platform
