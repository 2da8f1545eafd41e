#include <fmt/core.h>

#include "platform/database/dialect/Functions.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

std::string ArgumentCounts(const FunctionDefinition& function) {
    if (function.fewest == function.most) {
        return fmt::format("{} argument{}", function.fewest, function.fewest == 1 ? "" : "s");
    }
    return fmt::format("{} to {} arguments", function.fewest, function.most);
}

} // namespace

const FunctionDefinition* FindFunction(std::string_view name) {
    for (const auto functions : {AggregateFunctions(), GeneralFunctions(), TextFunctions(),
                                 DateFunctions(), NumberFunctions()}) {
        for (const FunctionDefinition& function : functions) {
            if (function.name.size() == name.size() && EqualIgnoringCase(function.name, name)) {
                return &function;
            }
        }
    }
    return nullptr;
}

bool FunctionCall::HasStar() const {
    return call_.operands.size() == 1 && call_.operands[0]->kind == ExpressionKind::Star;
}

BoundPtr Binder::BindFunction(const Expression& expression) {
    const FunctionDefinition* function = FindFunction(expression.text);
    if (function == nullptr) {
        Fault(expression.position, fmt::format("Unknown function '{}'", expression.text));
    }
    const std::size_t count = expression.operands.size();
    if (count < function->fewest || count > function->most) {
        Fault(expression.position,
              fmt::format("{} takes {}, not {}", function->name, ArgumentCounts(*function), count));
    }
    std::string_view clause = rowClause_;
    if (function->kind == FunctionKind::Aggregate) {
        if (!clause.empty()) {
            Fault(expression.position,
                  fmt::format("{} is not allowed in {}", function->name, clause));
        }
        scope_->hasAggregate = true;
        clause = function->name;
    }
    const RowClause rows(*this, clause);
    std::vector<BoundPtr> arguments;
    for (const ExpressionPtr& operand : expression.operands) {
        const bool counted = operand->kind == ExpressionKind::Star && function->name == "Count";
        if (!counted) arguments.push_back(Bind(*operand));
    }
    FunctionCall call(*this, expression, std::move(arguments));
    BoundPtr bound = function->bind(call);
    bound->position = expression.position;
    return bound;
}

} // namespace platform::dialect
