#include "platform/database/dialect/Functions.h"

namespace platform::dialect {

namespace {

BoundPtr Sum(FunctionCall& call) {
    if (call[0].Is(FieldType::Currency)) {
        // The engine sums integers exactly, and fails instead of overflowing.
        const bool isChecked = IsExact(call[0]);
        BoundPtr sum = MakeCall("SUM", FieldType::Currency, WithoutCheck(call.Take(0)));
        return isChecked ? Exact(std::move(sum)) : std::move(sum);
    }
    BoundPtr number = call.Number(0);
    const bool whole = number->IsWhole();
    BoundPtr sum = MakeCall("SUM", FieldType::Double, std::move(number));
    if (!whole) return sum;
    BoundPtr real = MakeBound(BoundKind::Cast, FieldType::Double, "REAL", 0);
    real->operands.push_back(std::move(sum));
    return real;
}

BoundPtr Avg(FunctionCall& call) {
    if (call[0].Is(FieldType::Currency)) {
        return MakeCall("vestrel_money_avg", FieldType::Currency, call.Take(0));
    }
    return MakeCall("AVG", FieldType::Double, call.Number(0));
}

BoundPtr OneOfGroup(std::string_view function, FunctionCall& call) {
    BoundPtr value = call.As(0, call[0].type.value_or(FieldType::Text));
    const auto type = value->type;
    BoundPtr one = MakeCall(function, type, std::move(value));
    one->ignoresCase = one->IsText();
    return one;
}

BoundPtr ByRow(std::string_view function, FunctionCall& call) {
    BoundPtr value = call.As(0, call[0].type.value_or(FieldType::Text));
    const auto type = value->type;
    return MakeCall(function, type, std::move(value), call.RowNumber());
}

BoundPtr Spread(std::string_view function, FunctionCall& call) {
    return MakeCall(function, FieldType::Double, call.Number(0));
}

constexpr auto kKind = FunctionKind::Aggregate;

constexpr FunctionDefinition kAggregateFunctions[] = {
    {"Sum", 1, 1, Sum, kKind},
    {"Avg", 1, 1, Avg, kKind},
    {"Min", 1, 1, [](FunctionCall& call) { return OneOfGroup("MIN", call); }, kKind},
    {"Max", 1, 1, [](FunctionCall& call) { return OneOfGroup("MAX", call); }, kKind},
    {"First", 1, 1, [](FunctionCall& call) { return ByRow("vestrel_first", call); }, kKind},
    {"Last", 1, 1, [](FunctionCall& call) { return ByRow("vestrel_last", call); }, kKind},
    {"Count", 1, 1,
     [](FunctionCall& call) {
         if (call.HasStar()) return MakeCall("COUNT", FieldType::Long);
         return MakeCall("COUNT", FieldType::Long, call.Take(0));
     },
     kKind},
    {"StDev", 1, 1, [](FunctionCall& call) { return Spread("vestrel_stdev", call); }, kKind},
    {"Var", 1, 1, [](FunctionCall& call) { return Spread("vestrel_var", call); }, kKind},
};

} // namespace

std::span<const FunctionDefinition> AggregateFunctions() {
    return kAggregateFunctions;
}

} // namespace platform::dialect
