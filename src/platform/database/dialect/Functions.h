#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

/// A call of a dialect function, with its arguments bound.
class FunctionCall {
  public:
    FunctionCall(Binder& binder, const Expression& call, std::vector<BoundPtr> arguments)
        : binder_(binder), call_(call), arguments_(std::move(arguments)) {}

    std::size_t Count() const { return arguments_.size(); }
    const BoundExpression& operator[](std::size_t i) const { return *arguments_[i]; }
    /// Returns true for Count(*).
    bool HasStar() const;

    // Each returns an argument, unchanged or converted. A function takes each argument only once.
    BoundPtr Take(std::size_t i) { return std::move(arguments_[i]); }
    BoundPtr Text(std::size_t i) { return binder_.ToText(Take(i)); }
    BoundPtr Number(std::size_t i) { return binder_.ToNumber(Take(i)); }
    BoundPtr Date(std::size_t i) { return binder_.ToDate(Take(i)); }
    BoundPtr Condition(std::size_t i) { return binder_.ToCondition(Take(i)); }
    BoundPtr As(std::size_t i, FieldType type) { return binder_.ToType(Take(i), type); }
    /// Returns an integer argument; an error message names the function.
    BoundPtr Whole(std::size_t i, FieldType type = FieldType::Long) {
        return binder_.ToWhole(Take(i), type, call_.text);
    }
    BoundPtr RowNumber() const { return binder_.RowNumber(); }

  private:
    Binder& binder_;
    const Expression& call_;
    std::vector<BoundPtr> arguments_;
};

enum class FunctionKind : std::uint8_t { Scalar, Aggregate };

struct FunctionDefinition {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    BoundPtr (*bind)(FunctionCall& call);
    FunctionKind kind = FunctionKind::Scalar;
};

/// Returns the function with this name, ignoring case; null if there is none.
const FunctionDefinition* FindFunction(std::string_view name);

// Returns the functions of the dialect, by subject.
std::span<const FunctionDefinition> TextFunctions();
std::span<const FunctionDefinition> DateFunctions();
std::span<const FunctionDefinition> NumberFunctions();
std::span<const FunctionDefinition> GeneralFunctions();
std::span<const FunctionDefinition> AggregateFunctions();

} // namespace platform::dialect
