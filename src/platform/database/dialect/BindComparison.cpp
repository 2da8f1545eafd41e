#include <algorithm>
#include <array>

#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

namespace {

/// Returns true for a number literal that is a boolean value too: 0 or -1.
bool IsBooleanLiteral(const BoundExpression& value) {
    return value.kind == BoundKind::Number && (value.text == "0" || value.text == "-1");
}

Domain DomainOf(std::span<BoundPtr* const> values) {
    const auto any = [&](auto test) {
        return std::ranges::any_of(values, [&](BoundPtr* value) { return test(**value); });
    };
    const auto has = [&](FieldType type) {
        return any([&](const BoundExpression& value) { return value.Is(type); });
    };
    if (has(FieldType::Date)) return Domain::Date;
    // Money is compared as a double if the other operand may hold a number that money can't hold
    // exactly.
    const bool inexact = any([](const BoundExpression& value) {
        return (value.Is(FieldType::Double) && !value.IsNumberLiteral()) ||
               (value.IsText() && !value.IsTextLiteral());
    });
    if (has(FieldType::Currency)) return inexact ? Domain::Number : Domain::Money;
    const auto isNumber = [](const BoundExpression& value) {
        return value.IsWhole() || value.Is(FieldType::Double);
    };
    if (has(FieldType::Boolean)) {
        const bool asNumber = any([&](const BoundExpression& value) {
            return isNumber(value) && !IsBooleanLiteral(value);
        });
        return asNumber ? Domain::Number : Domain::Boolean;
    }
    return any(isNumber) ? Domain::Number : Domain::Text;
}

/// Returns the type that a parameter gets if it is compared with these values.
FieldType ParameterType(Domain domain, std::span<BoundPtr* const> values) {
    switch (domain) {
        case Domain::Text:
            return FieldType::Text;
        case Domain::Money:
            return FieldType::Currency;
        case Domain::Date:
            return FieldType::Date;
        case Domain::Boolean:
            return FieldType::Boolean;
        case Domain::Number:
            break;
    }
    const bool whole = std::ranges::all_of(
        values, [](BoundPtr* value) { return (*value)->IsWhole() || !(*value)->type; });
    return whole ? FieldType::Long : FieldType::Double;
}

} // namespace

Domain Binder::BringTogether(std::span<BoundPtr* const> values) {
    const Domain domain = DomainOf(values);
    const FieldType parameterType = ParameterType(domain, values);
    for (BoundPtr* value : values)
        *value = ToDomain(std::move(*value), domain, parameterType);
    return domain;
}

BoundPtr Binder::ToDomain(BoundPtr value, Domain domain, FieldType parameterType) {
    if (!value->type) {
        TellType(*value, parameterType);
        return value;
    }
    switch (domain) {
        case Domain::Text:
            return ToText(std::move(value));
        case Domain::Money:
            if (value->IsNumberLiteral() || value->IsTextLiteral()) {
                return ToExactMoney(std::move(value));
            }
            return ToMoney(std::move(value));
        case Domain::Date:
            return ToDate(std::move(value));
        case Domain::Boolean:
            if (IsBooleanLiteral(*value)) {
                return MakeNumber(value->text == "0" ? "0" : "1", FieldType::Boolean,
                                  value->position);
            }
            return ToCondition(std::move(value));
        case Domain::Number:
            break;
    }
    if (value->IsText() && !value->IsTextLiteral()) {
        // A text field may hold numbers and other text; text that isn't a number never equals one.
        return MakeCall("vestrel_number_if", FieldType::Double, std::move(value));
    }
    return ToNumber(std::move(value));
}

BoundPtr Binder::BindComparison(const Expression& expression) {
    BoundPtr left = Bind(*expression.operands[0]);
    BoundPtr right = Bind(*expression.operands[1]);
    const std::array<BoundPtr*, 2> values = {&left, &right};
    const Domain domain = BringTogether(values);
    BoundPtr comparison =
        MakeInfix(expression.text, FieldType::Boolean, std::move(left), std::move(right));
    comparison->ignoresCase = domain == Domain::Text;
    return comparison;
}

} // namespace platform::dialect
