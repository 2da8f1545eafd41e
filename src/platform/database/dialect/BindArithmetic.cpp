#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

namespace {

constexpr std::string_view kExact = "vestrel_exact";

bool IsSumSymbol(std::string_view symbol) {
    return symbol == "+" || symbol == "-";
}

} // namespace

BoundPtr Exact(BoundPtr money) {
    return MakeCall(kExact, FieldType::Currency, std::move(money));
}

bool IsExact(const BoundExpression& money) {
    return money.kind == BoundKind::Call && money.text == kExact;
}

BoundPtr WithoutCheck(BoundPtr money) {
    return IsExact(*money) ? std::move(money->operands[0]) : std::move(money);
}

BoundPtr Binder::BindSum(const Expression& expression, BoundPtr left, BoundPtr right) {
    const auto mayJoin = [](const BoundExpression& value) { return value.IsText() || !value.type; };
    if (mayJoin(*left) && mayJoin(*right)) {
        // Unlike &, + returns null if an operand is null.
        left = ToText(std::move(left));
        return MakeInfix("||", FieldType::Text, std::move(left), ToText(std::move(right)));
    }
    const auto isField = [](const BoundExpression& value) {
        return value.IsText() && !value.IsTextLiteral();
    };
    if (isField(*left) || isField(*right)) {
        Fault(expression.position, "'+' can't add text to a number; use '&' to join them");
    }
    return BindArithmetic(expression, std::move(left), std::move(right));
}

BoundPtr Binder::BindArithmetic(const Expression& expression, BoundPtr left, BoundPtr right) {
    const std::string_view symbol = expression.text;
    if (left->Is(FieldType::Date) || right->Is(FieldType::Date)) {
        return BindDateArithmetic(expression, std::move(left), std::move(right));
    }
    if (left->Is(FieldType::Currency) || right->Is(FieldType::Currency)) {
        if (IsSumSymbol(symbol) || symbol == "*") {
            return BindMoneyArithmetic(expression, std::move(left), std::move(right));
        }
    }
    left = ToNumber(std::move(left));
    right = ToNumber(std::move(right));
    if (symbol == "^") {
        return MakeCall("vestrel_power", FieldType::Double, std::move(left), std::move(right));
    }
    if (symbol == "/") {
        BoundPtr real = MakeBound(BoundKind::Cast, FieldType::Double, "REAL", left->position);
        real->operands.push_back(std::move(left));
        return MakeInfix("/", FieldType::Double, std::move(real), std::move(right));
    }
    const bool whole = left->IsWhole() && right->IsWhole();
    BoundPtr result;
    if (symbol == "\\" || symbol == "MOD") {
        const auto rounded = [](BoundPtr value) {
            if (value->IsWhole()) return value;
            return MakeCall("vestrel_whole", FieldType::Long, std::move(value));
        };
        left = rounded(std::move(left));
        result = MakeInfix(symbol == "MOD" ? "%" : "/", FieldType::Long, std::move(left),
                           rounded(std::move(right)));
    } else {
        result = MakeInfix(symbol, whole ? FieldType::Long : FieldType::Double, std::move(left),
                           std::move(right));
    }
    result->isComputed = true;
    return result;
}

BoundPtr Binder::BindDateArithmetic(const Expression& expression, BoundPtr left, BoundPtr right) {
    const std::string_view symbol = expression.text;
    const bool both = left->Is(FieldType::Date) && right->Is(FieldType::Date);
    if (!IsSumSymbol(symbol) || (both && symbol == "+")) {
        Fault(expression.position,
              "Only days can be added to a date, and only a date or days subtracted from it");
    }
    const FieldType type = both ? FieldType::Long : FieldType::Date;
    left = ToNumber(std::move(left));
    return MakeInfix(symbol, type, std::move(left), ToNumber(std::move(right)));
}

BoundPtr Binder::BindMoneyArithmetic(const Expression& expression, BoundPtr left, BoundPtr right) {
    const std::string_view symbol = expression.text;
    const auto isReal = [](const BoundExpression& value) {
        return value.Is(FieldType::Double) && !value.IsNumberLiteral();
    };
    if (symbol != "*" && !isReal(*left) && !isReal(*right)) {
        left = WithoutCheck(ToMoney(std::move(left)));
        right = WithoutCheck(ToMoney(std::move(right)));
        return Exact(MakeInfix(symbol, FieldType::Currency, std::move(left), std::move(right)));
    }
    const auto isCount = [](const BoundExpression& value) {
        return value.IsWhole() || value.Is(FieldType::Boolean);
    };
    if (symbol == "*" && (isCount(*left) || isCount(*right))) {
        const auto factor = [this](BoundPtr value) {
            return value->Is(FieldType::Currency) ? WithoutCheck(std::move(value))
                                                  : ToNumber(std::move(value));
        };
        left = factor(std::move(left));
        return Exact(
            MakeInfix(symbol, FieldType::Currency, std::move(left), factor(std::move(right))));
    }
    left = ToNumber(std::move(left));
    return MakeInfix(symbol, FieldType::Double, std::move(left), ToNumber(std::move(right)));
}

} // namespace platform::dialect
