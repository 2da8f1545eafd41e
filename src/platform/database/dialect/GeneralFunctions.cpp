#include <array>

#include "platform/database/dialect/Functions.h"

namespace platform::dialect {

namespace {

FieldType CommonTypeOf(const FunctionCall& call, std::size_t first, std::size_t second) {
    const std::array<const BoundExpression*, 2> values = {&call[first], &call[second]};
    return CommonType(values).value_or(FieldType::Text);
}

BoundPtr IIf(FunctionCall& call) {
    const FieldType type = CommonTypeOf(call, 1, 2);
    BoundPtr choice = MakeBound(BoundKind::Case, type, {}, 0);
    choice->operands.push_back(call.Condition(0));
    choice->operands.push_back(call.As(1, type));
    BoundPtr otherwise = call.As(2, type);
    if (otherwise->kind == BoundKind::Case) {
        // Nested choices become one CASE, because the engine accepts only few nested ones.
        for (BoundPtr& operand : otherwise->operands)
            choice->operands.push_back(std::move(operand));
    } else {
        choice->operands.push_back(std::move(otherwise));
    }
    return choice;
}

BoundPtr Nz(FunctionCall& call) {
    if (call.Count() == 2) {
        const FieldType type = CommonTypeOf(call, 0, 1);
        BoundPtr value = call.As(0, type);
        return MakeCall("IFNULL", type, std::move(value), call.As(1, type));
    }
    const FieldType own = call[0].type.value_or(FieldType::Text);
    BoundPtr value = call.As(0, own);
    BoundPtr nothing = value->IsText() || !value->type ? MakeText({}, 0) : MakeNumber("0", own, 0);
    return MakeCall("IFNULL", own, std::move(value), std::move(nothing));
}

BoundPtr Format(FunctionCall& call) {
    std::string_view function = "vestrel_format";
    if (call[0].Is(FieldType::Currency)) function = "vestrel_format_money";
    if (call[0].Is(FieldType::Date)) function = "vestrel_format_date";
    if (call[0].Is(FieldType::Boolean)) function = "vestrel_format_boolean";
    BoundPtr value = call.Take(0);
    BoundPtr format = call.Count() == 2 ? call.Text(1) : MakeText({}, 0);
    return MakeCall(function, FieldType::Text, std::move(value), std::move(format));
}

BoundPtr IsNull(FunctionCall& call) {
    BoundPtr test = MakeBound(BoundKind::IsNull, FieldType::Boolean, {}, 0);
    test->operands.push_back(call.Take(0));
    return test;
}

constexpr FunctionDefinition kGeneralFunctions[] = {
    {"IIf", 3, 3, IIf},
    {"Nz", 1, 2, Nz},
    {"IsNull", 1, 1, IsNull},
    {"Format", 1, 2, Format},
};

} // namespace

std::span<const FunctionDefinition> GeneralFunctions() {
    return kGeneralFunctions;
}

} // namespace platform::dialect
