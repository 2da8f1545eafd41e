#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace platform {

/// One stored value as the engine holds it. The bytes of a text belong to whoever gave the cell.
struct Cell {
    enum class Kind : std::uint8_t { Null, Integer, Real, Text, Blob };

    static Cell OfInteger(std::int64_t integer) { return {Kind::Integer, integer, 0, {}}; }
    static Cell OfReal(double real) { return {Kind::Real, 0, real, {}}; }
    static Cell OfText(std::string_view text) { return {Kind::Text, 0, 0, text}; }

    Kind kind = Kind::Null;
    std::int64_t integer = 0;
    double real = 0;
    std::string_view bytes;

    friend bool operator==(const Cell&, const Cell&) = default;
};

/// What a field of `type` reads from a stored value. What another tool stored in another form is
/// read as the type would have it where that loses nothing, else as what it is. An amount or a day
/// that no value holds throws OverflowError.
Value ReadCell(const Cell& cell, FieldType type);

/// A value as a field of `type` stores it; one that doesn't convert throws as Value does. A text
/// stays where it is in `value`, or is made in `scratch`.
Cell StoreCell(const Value& value, FieldType type, std::string& scratch);

} // namespace platform
