#include <cmath>

#include "platform/database/RecordsetState.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

[[noreturn]] void ThrowAt(const std::string& field, std::string_view what) {
    throw FieldError("Field " + field + ": " + std::string(what));
}

// Returns the result of `read`; if it can't convert, throws an error that names the field.
template <typename Read>
auto Guarded(const std::string& field, Read read) {
    try {
        return read();
    } catch (const ConversionError& error) {
        ThrowAt(field, error.what());
    } catch (const OverflowError& error) {
        ThrowAt(field, error.what());
    }
}

Value Converted(const std::string& field, const Value& value, FieldType type) {
    Value converted = Guarded(field, [&] { return value.ConvertTo(type); });
    const double* number = std::get_if<double>(&converted.Held());
    if (number != nullptr && std::isnan(*number)) ThrowAt(field, "this is not a number.");
    return converted;
}

} // namespace

const std::string& Field::Name() const {
    return rows_->Opened().Compiled().columns[index_].name;
}

FieldType Field::Type() const {
    return rows_->Opened().Compiled().columns[index_].type;
}

platform::Value Field::Value() const {
    Recordset::State& state = rows_->Opened();
    if (!state.HasRow()) ThrowAt(Name(), "there is no current row.");
    if (state.edited && state.edits[index_]) return *state.edits[index_];
    return Guarded(Name(), [&] { return ReadCell(state.Stored(index_), Type()); });
}

bool Field::IsNull() const {
    Recordset::State& state = rows_->Opened();
    if (!state.HasRow()) ThrowAt(Name(), "there is no current row.");
    if (state.edited && state.edits[index_]) return state.edits[index_]->IsNull();
    return state.Stored(index_).kind == Cell::Kind::Null;
}

bool Field::IsBlank() const {
    return IsNull() || Value().IsBlank();
}

void Field::Set(const platform::Value& value) {
    Recordset::State& state = rows_->Opened();
    if (!state.HasRow()) ThrowAt(Name(), "there is no current row.");
    if (state.IsWritable() && state.IsComputed(index_)) {
        ThrowAt(Name(), "the statement computes it, so it can't be written.");
    }
    state.Edit(index_, Converted(Name(), value, Type()));
}

bool Field::AsBoolean() const {
    return Guarded(Name(), [&] { return Value().AsBoolean(); });
}

std::int16_t Field::AsInteger() const {
    return Guarded(Name(), [&] { return Value().AsInteger(); });
}

std::int32_t Field::AsLong() const {
    return Guarded(Name(), [&] { return Value().AsLong(); });
}

double Field::AsDouble() const {
    return Guarded(Name(), [&] { return Value().AsDouble(); });
}

Currency Field::AsCurrency() const {
    return Guarded(Name(), [&] { return Value().AsCurrency(); });
}

Date Field::AsDate() const {
    return Guarded(Name(), [&] { return Value().AsDate(); });
}

std::string Field::AsText() const {
    return Guarded(Name(), [&] { return Value().AsText(); });
}

} // namespace platform
