#include "platform/database/dialect/Functions.h"

namespace platform::dialect {

namespace {

/// Returns a call of `function`, or of `ofMoney` for money, which computes with the scaled integer.
BoundPtr OfAnyNumber(std::string_view function, std::string_view ofMoney, FunctionCall& call) {
    if (call[0].Is(FieldType::Currency)) {
        return MakeCall(ofMoney, FieldType::Currency, call.Take(0));
    }
    BoundPtr number = call.Number(0);
    const FieldType type = number->IsWhole() ? FieldType::Long : FieldType::Double;
    return MakeCall(function, type, std::move(number));
}

BoundPtr Round(FunctionCall& call) {
    const bool money = call[0].Is(FieldType::Currency);
    BoundPtr number = money ? call.Take(0) : call.Number(0);
    FieldType type = number->IsWhole() ? FieldType::Long : FieldType::Double;
    if (money) type = FieldType::Currency;
    BoundPtr places = call.Count() == 2 ? call.Whole(1) : MakeNumber("0", FieldType::Long, 0);
    return MakeCall(money ? "vestrel_money_round" : "vestrel_round", type, std::move(number),
                    std::move(places));
}

template <FieldType Type>
BoundPtr To(FunctionCall& call) {
    return call.As(0, Type);
}

template <FieldType Type>
BoundPtr ToWhole(FunctionCall& call) {
    return call.Whole(0, Type);
}

constexpr FunctionDefinition kNumberFunctions[] = {
    {"Abs", 1, 1, [](FunctionCall& call) { return OfAnyNumber("abs", "abs", call); }},
    {"Int", 1, 1,
     [](FunctionCall& call) { return OfAnyNumber("floor", "vestrel_money_floor", call); }},
    {"Fix", 1, 1,
     [](FunctionCall& call) { return OfAnyNumber("trunc", "vestrel_money_fix", call); }},
    {"Round", 1, 2, Round},
    {"Sgn", 1, 1,
     [](FunctionCall& call) { return MakeCall("sign", FieldType::Long, call.Number(0)); }},
    {"Sqr", 1, 1,
     [](FunctionCall& call) {
         return MakeCall("vestrel_power", FieldType::Double, call.Number(0),
                         MakeNumber("0.5", FieldType::Double, 0));
     }},
    {"CCur", 1, 1, To<FieldType::Currency>},
    {"CInt", 1, 1, ToWhole<FieldType::Integer>},
    {"CLng", 1, 1, ToWhole<FieldType::Long>},
    {"CDbl", 1, 1, To<FieldType::Double>},
    {"CSng", 1, 1,
     [](FunctionCall& call) {
         return MakeCall("vestrel_single", FieldType::Double, call.Number(0));
     }},
    {"CStr", 1, 1, To<FieldType::Text>},
    {"CBool", 1, 1, To<FieldType::Boolean>},
};

} // namespace

std::span<const FunctionDefinition> NumberFunctions() {
    return kNumberFunctions;
}

} // namespace platform::dialect
