#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/database/dialect/Syntax.h"
#include "platform/values/Value.h"

namespace platform::dialect {

/// An expression in the engine's SQL, and what it yields in the stored form of its type.
struct Typed {
    std::string sql;
    /// None for NULL, and for a parameter whose place hasn't told its type yet.
    std::optional<FieldType> type;
    /// The number of a parameter that stands by itself.
    std::optional<std::size_t> parameter;
    /// A number, text or sign that stands by itself, so that it can be converted here and now.
    const Expression* literal = nullptr;

    bool Is(FieldType other) const { return type == other; }
    bool IsText() const { return Is(FieldType::Text) || Is(FieldType::Memo); }
    /// A whole number: of 16 or 32 bits.
    bool IsWhole() const { return Is(FieldType::Integer) || Is(FieldType::Long); }
    /// Any number but money; a boolean counts as -1 where it is reckoned with.
    bool IsPlainNumber() const {
        return IsWhole() || Is(FieldType::Double) || Is(FieldType::Boolean);
    }
};

inline Typed MakeTyped(std::string sql, FieldType type) {
    return {std::move(sql), type, {}, nullptr};
}

/// The type that values of both can be brought to: none for two of none.
std::optional<FieldType> CommonType(std::optional<FieldType> a, std::optional<FieldType> b);

} // namespace platform::dialect
