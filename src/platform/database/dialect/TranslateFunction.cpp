#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/FunctionCall.h"
#include "platform/values/Text.h"

namespace platform::dialect {

FunctionCall::FunctionCall(Translator& translator, const Expression& call)
    : translator_(translator), call_(call) {
    for (const ExpressionPtr& operand : call.operands) {
        const bool isStar = operand->kind == ExpressionKind::Star;
        arguments_.push_back(isStar ? Typed{"*", {}, {}, operand.get()}
                                    : translator.Expr(*operand));
    }
}

std::string FunctionCall::Texts(std::string_view function) const {
    std::string sql = std::string(function) + "(";
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        if (i > 0) sql += ", ";
        sql += translator_.ToText(arguments_[i]);
    }
    return sql + ")";
}

Typed TranslateCall(Translator& translator, const Expression& call) {
    const FunctionDefinition* definition = nullptr;
    for (const auto functions : {TextFunctions(), DateFunctions(), NumberFunctions(),
                                 GeneralFunctions(), AggregateFunctions()}) {
        for (const FunctionDefinition& candidate : functions) {
            if (EqualIgnoringCase(candidate.name, call.text)) definition = &candidate;
        }
        if (definition != nullptr) break;
    }
    if (definition == nullptr) {
        translator.Fault(call.position, fmt::format("Unknown function '{}'", call.text));
    }
    const std::size_t count = call.operands.size();
    if (count < definition->fewest || count > definition->most) {
        translator.Fault(call.position,
                         fmt::format("{} takes {} to {} arguments, not {}", definition->name,
                                     definition->fewest, definition->most, count));
    }
    const bool hasStar = count > 0 && call.operands[0]->kind == ExpressionKind::Star;
    if (hasStar && definition->name != "Count") {
        translator.Fault(call.operands[0]->position, "'*' stands for no single value");
    }
    return definition->translate(FunctionCall(translator, call));
}

} // namespace platform::dialect
