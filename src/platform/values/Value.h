#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace platform {

/// The type of a database field. Screens and the repair of nulls know the types by these numbers.
enum class FieldType : std::int16_t {
    Integer = 2, ///< 16 bits
    Long = 3,    ///< 32 bits
    Double = 5,
    Currency = 6,
    Date = 7, ///< only ever computed: stored dates are text
    Boolean = 11,
    Text = 202,
    Memo = 203,
};

/// Returns the name of a field type in messages: "Integer", "Long", ...
std::string_view FieldTypeName(FieldType type);

/// One database value: null, or a value of one of the field types.
class Value {
  public:
    Value() = default;
    Value(bool value) : data_(value) {}
    Value(std::int16_t value) : data_(value) {}
    Value(std::int32_t value) : data_(value) {}
    Value(double value) : data_(value) {}
    Value(Currency value) : data_(value) {}
    /// An unset date is null.
    Value(Date value);
    Value(std::string value) : data_(std::move(value)) {}
    Value(std::string_view value) : data_(std::string(value)) {}
    Value(const char* value) : data_(std::string(value)) {}
    /// A code is stored as its number.
    template <class Code>
    requires(std::is_enum_v<Code> && !std::is_convertible_v<Code, int>) Value(Code code)
        : Value(static_cast<std::underlying_type_t<Code>>(code)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }
    /// Returns true for null and for an empty text: both mean that nothing is set.
    bool IsBlank() const;

    // The functions below convert a value as the field types do: a number from a text that is one,
    // a text from anything; True counts as 1, a date as its serial number. A null, or a text that
    // does not convert, throws ConversionError; a number out of range throws OverflowError; halves
    // round to even. Any number but 0 is true; of texts only "True", "False" and numbers convert.
    bool AsBoolean() const;
    std::int16_t AsInteger() const;
    std::int32_t AsLong() const;
    double AsDouble() const;
    Currency AsCurrency() const;
    /// Returns the date of a text that is a day, of a date, or of a serial number (its whole part);
    /// a blank text is the unset date.
    Date AsDate() const;
    /// Returns numbers in their shortest form, booleans as "True" and "False", dates as
    /// "mm/dd/yyyy".
    std::string AsText() const;

    /// Returns this value as a field of `type` holds it; null stays null.
    Value ConvertTo(FieldType type) const;

    /// The stored form, for code that depends on the type of the value.
    using Data = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Currency,
                              Date, std::string>;
    const Data& Held() const { return data_; }

    /// Returns whether type and value are the same; texts are compared letter by letter.
    friend bool operator==(const Value&, const Value&) = default;

  private:
    Data data_;
};

} // namespace platform
