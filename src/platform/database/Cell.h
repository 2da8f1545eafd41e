#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace platform {

/// One stored value as the engine holds it. The bytes of a text belong to the provider of the cell.
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

/// Returns a stored value as a field of `type` reads it. A value that another tool stored in
/// another form is converted to the type if nothing is lost by that; otherwise it is returned as it
/// is. Throws OverflowError for an amount or a day that no value can hold.
Value ReadCell(const Cell& cell, FieldType type);

/// Returns a value as a field of `type` stores it; throws as Value does if it can't be converted. A
/// text stays in `value`, or is made in `scratch`.
Cell StoreCell(const Value& value, FieldType type, std::string& scratch);

} // namespace platform
