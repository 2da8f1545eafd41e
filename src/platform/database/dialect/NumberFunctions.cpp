#include <fmt/core.h>

#include "platform/database/dialect/FunctionCall.h"

namespace platform::dialect {

namespace {

FieldType NumberType(const Typed& value) {
    if (value.Is(FieldType::Currency)) return FieldType::Currency;
    return value.IsWhole() ? FieldType::Long : FieldType::Double;
}

/// `function` of a number, or its twin for money, which reckons with the scaled form.
Typed SameType(const FunctionCall& call, std::string_view function, std::string_view ofMoney) {
    const FieldType type = NumberType(call[0]);
    const bool money = type == FieldType::Currency;
    return MakeTyped(
        fmt::format("{}({})", money ? ofMoney : function, money ? call[0].sql : call.Number(0)),
        type);
}

template <FieldType Type>
Typed Convert(const FunctionCall& call) {
    return MakeTyped(call.As(0, Type), Type);
}

constexpr FunctionDefinition kFunctions[] = {
    {"Abs", 1, 1, [](const FunctionCall& call) { return SameType(call, "abs", "abs"); }},
    {"Int", 1, 1,
     [](const FunctionCall& call) {
         return SameType(call, "vestrel_floor", "vestrel_money_floor");
     }},
    {"Fix", 1, 1,
     [](const FunctionCall& call) { return SameType(call, "vestrel_fix", "vestrel_money_fix"); }},
    {"Round", 1, 2,
     [](const FunctionCall& call) {
         const bool money = call[0].Is(FieldType::Currency);
         return MakeTyped(fmt::format("{}({}, {})", money ? "vestrel_money_round" : "vestrel_round",
                                      money ? call[0].sql : call.Number(0),
                                      call.Count() == 2 ? call.Number(1) : std::string("0")),
                          NumberType(call[0]));
     }},
    {"Sgn", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("sign({})", call.Number(0)), FieldType::Long);
     }},
    {"Sqr", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("vestrel_power({}, 0.5)", call.Number(0)), FieldType::Double);
     }},
    {"CCur", 1, 1, Convert<FieldType::Currency>},
    {"CInt", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(call.As(0, FieldType::Integer, "CInt"), FieldType::Integer);
     }},
    {"CLng", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(call.As(0, FieldType::Long, "CLng"), FieldType::Long);
     }},
    {"CDbl", 1, 1, Convert<FieldType::Double>},
    {"CSng", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("vestrel_single({})", call.Number(0)), FieldType::Double);
     }},
    {"CStr", 1, 1, Convert<FieldType::Text>},
    {"CBool", 1, 1, Convert<FieldType::Boolean>},
};

} // namespace

std::span<const FunctionDefinition> NumberFunctions() {
    return kFunctions;
}

} // namespace platform::dialect
