#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Translator.h"

namespace platform::dialect {

/// A call with its arguments translated.
class FunctionCall {
  public:
    FunctionCall(Translator& translator, const Expression& call);

    std::size_t Count() const { return arguments_.size(); }
    const Typed& operator[](std::size_t i) const { return arguments_[i]; }
    std::size_t Position() const { return call_.position; }

    // An argument as a value of a type.
    std::string Text(std::size_t i) const { return translator_.ToText(arguments_[i]); }
    std::string Number(std::size_t i) const { return translator_.ToNumber(arguments_[i]); }
    std::string Date(std::size_t i) const { return translator_.ToDate(arguments_[i]); }
    std::string Condition(std::size_t i) const { return translator_.ToCondition(arguments_[i]); }
    std::string As(std::size_t i, FieldType type, std::string_view field = {}) const {
        return translator_.ToType(arguments_[i], type, field);
    }

    /// `function` of all arguments as texts.
    std::string Texts(std::string_view function) const;

    void NoteAggregate() const { translator_.NoteAggregate(call_.position); }

  private:
    Translator& translator_;
    const Expression& call_;
    std::vector<Typed> arguments_;
};

struct FunctionDefinition {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    Typed (*translate)(const FunctionCall& call);
};

// The functions of the dialect, by what they are about.
std::span<const FunctionDefinition> TextFunctions();
std::span<const FunctionDefinition> DateFunctions();
std::span<const FunctionDefinition> NumberFunctions();
std::span<const FunctionDefinition> GeneralFunctions();
std::span<const FunctionDefinition> AggregateFunctions();

} // namespace platform::dialect
