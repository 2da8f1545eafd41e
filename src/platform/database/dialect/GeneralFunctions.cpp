#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/FunctionCall.h"

namespace platform::dialect {

namespace {

Typed Choose(const FunctionCall& call) {
    const FieldType type = CommonType(call[1].type, call[2].type).value_or(FieldType::Text);
    return MakeTyped(fmt::format("(CASE WHEN {} THEN {} ELSE {} END)", call.Condition(0),
                                 call.As(1, type), call.As(2, type)),
                     type);
}

Typed NullToValue(const FunctionCall& call) {
    const FieldType own = call[0].type.value_or(FieldType::Text);
    if (call.Count() == 1) {
        const bool text = own == FieldType::Text || own == FieldType::Memo;
        return MakeTyped(fmt::format("IFNULL({}, {})", call.As(0, own), text ? "''" : "0"), own);
    }
    const FieldType type = CommonType(call[0].type, call[1].type).value_or(FieldType::Text);
    return MakeTyped(fmt::format("IFNULL({}, {})", call.As(0, type), call.As(1, type)), type);
}

Typed FormatValue(const FunctionCall& call) {
    std::string_view kind = "value";
    if (call[0].Is(FieldType::Currency)) kind = "money";
    if (call[0].Is(FieldType::Date)) kind = "date";
    if (call[0].Is(FieldType::Boolean)) kind = "boolean";
    return MakeTyped(fmt::format("vestrel_format('{}', {}, {})", kind, call[0].sql,
                                 call.Count() == 2 ? call.Text(1) : std::string("''")),
                     FieldType::Text);
}

constexpr FunctionDefinition kFunctions[] = {
    {"IIf", 3, 3, Choose},
    {"Nz", 1, 2, NullToValue},
    {"IsNull", 1, 1,
     [](const FunctionCall& call) {
         return MakeTyped(fmt::format("({} IS NULL)", call[0].sql), FieldType::Boolean);
     }},
    {"Format", 1, 2, FormatValue},
};

} // namespace

std::span<const FunctionDefinition> GeneralFunctions() {
    return kFunctions;
}

} // namespace platform::dialect
