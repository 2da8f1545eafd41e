#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

BoundPtr Binder::BindOperator(const Expression& expression) {
    const std::string_view symbol = expression.text;
    if (symbol == "AND" || symbol == "OR" || symbol == "&") return BindRow(expression);
    if (symbol == "LIKE") return BindLike(expression);
    if (symbol == "XOR" || symbol == "EQV") {
        BoundPtr left = ToCondition(Bind(*expression.operands[0]));
        return MakeInfix(symbol == "XOR" ? "<>" : "=", FieldType::Boolean, std::move(left),
                         ToCondition(Bind(*expression.operands[1])));
    }
    const char first = symbol[0];
    if (first == '=' || first == '<' || first == '>') return BindComparison(expression);
    BoundPtr left = Bind(*expression.operands[0]);
    BoundPtr right = Bind(*expression.operands[1]);
    if (symbol == "+") return BindSum(expression, std::move(left), std::move(right));
    return BindArithmetic(expression, std::move(left), std::move(right));
}

BoundPtr Binder::BindRow(const Expression& expression) {
    const bool joins = expression.text == "&";
    BoundPtr row;
    for (const ExpressionPtr& operand : expression.operands) {
        BoundPtr value = Bind(*operand);
        if (joins) {
            value = ToText(std::move(value));
            // Unlike +, & treats null as an empty string.
            if (!value->IsTextLiteral()) {
                value = MakeCall("IFNULL", FieldType::Text, std::move(value), MakeText({}, 0));
            }
        } else {
            value = ToCondition(std::move(value));
        }
        row = row ? MakeInfix(joins ? "||" : expression.text,
                              joins ? FieldType::Text : FieldType::Boolean, std::move(row),
                              std::move(value))
                  : std::move(value);
    }
    return row;
}

BoundPtr Binder::BindNegate(const Expression& expression) {
    BoundPtr value = Bind(*expression.operands[0]);
    if (value->IsNumberLiteral() && value->text[0] != '-') {
        value->text.insert(0, 1, '-');
        return value;
    }
    if (value->Is(FieldType::Currency)) {
        return MakePrefix("-", FieldType::Currency, std::move(value));
    }
    value = ToNumber(std::move(value));
    const FieldType type = value->IsWhole() ? FieldType::Long : FieldType::Double;
    BoundPtr negated = MakePrefix("-", type, std::move(value));
    negated->isComputed = true;
    return negated;
}

BoundPtr Binder::BindLike(const Expression& expression) {
    BoundPtr text = ToText(Bind(*expression.operands[0]));
    BoundPtr pattern = ToText(Bind(*expression.operands[1]));
    BoundPtr like =
        MakeCall("vestrel_like", FieldType::Boolean, std::move(text), std::move(pattern));
    return expression.negated ? MakePrefix("NOT", FieldType::Boolean, std::move(like))
                              : std::move(like);
}

} // namespace platform::dialect
