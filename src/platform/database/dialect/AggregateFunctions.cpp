#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/FunctionCall.h"

namespace platform::dialect {

namespace {

Typed SumUp(const FunctionCall& call) {
    call.NoteAggregate();
    // The engine adds whole numbers exactly, and fails rather than overflow.
    if (call[0].Is(FieldType::Currency)) {
        return MakeTyped(fmt::format("SUM({})", call[0].sql), FieldType::Currency);
    }
    return MakeTyped(fmt::format("SUM({})", call.Number(0)), FieldType::Double);
}

Typed Average(const FunctionCall& call) {
    call.NoteAggregate();
    if (call[0].Is(FieldType::Currency)) {
        return MakeTyped(fmt::format("vestrel_quotient(SUM({0}), COUNT({0}))", call[0].sql),
                         FieldType::Currency);
    }
    return MakeTyped(fmt::format("AVG({})", call.Number(0)), FieldType::Double);
}

Typed OneOfGroup(const FunctionCall& call, std::string_view function) {
    call.NoteAggregate();
    const FieldType type = call[0].type.value_or(FieldType::Text);
    return MakeTyped(fmt::format("{}({}{})", function, call[0].sql,
                                 call[0].IsText() ? kTextCollation : std::string_view()),
                     type);
}

constexpr FunctionDefinition kFunctions[] = {
    {"Sum", 1, 1, SumUp},
    {"Avg", 1, 1, Average},
    {"Min", 1, 1, [](const FunctionCall& call) { return OneOfGroup(call, "MIN"); }},
    {"Max", 1, 1, [](const FunctionCall& call) { return OneOfGroup(call, "MAX"); }},
    {"First", 1, 1, [](const FunctionCall& call) { return OneOfGroup(call, "vestrel_first"); }},
    {"Last", 1, 1, [](const FunctionCall& call) { return OneOfGroup(call, "vestrel_last"); }},
    {"Count", 1, 1,
     [](const FunctionCall& call) {
         call.NoteAggregate();
         return MakeTyped(fmt::format("COUNT({})", call[0].sql), FieldType::Long);
     }},
};

} // namespace

std::span<const FunctionDefinition> AggregateFunctions() {
    return kFunctions;
}

} // namespace platform::dialect
