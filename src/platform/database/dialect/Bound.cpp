#include "platform/database/dialect/Bound.h"

#include <algorithm>

namespace platform::dialect {

namespace {

bool IsRow(std::string_view symbol) {
    return symbol == "AND" || symbol == "OR" || symbol == "||";
}

bool IsNumber(FieldType type) {
    return type == FieldType::Integer || type == FieldType::Long || type == FieldType::Double ||
           type == FieldType::Currency || type == FieldType::Boolean;
}

} // namespace

std::string NumberedName(std::size_t column) {
    return "c" + std::to_string(column);
}

BoundPtr MakeBound(BoundKind kind, std::optional<FieldType> type, std::string text,
                   std::size_t position) {
    auto bound = std::make_unique<BoundExpression>();
    bound->kind = kind;
    bound->type = type;
    bound->text = std::move(text);
    bound->position = position;
    return bound;
}

BoundPtr MakeNumber(std::string text, FieldType type, std::size_t position) {
    return MakeBound(BoundKind::Number, type, std::move(text), position);
}

BoundPtr MakeText(std::string text, std::size_t position) {
    return MakeBound(BoundKind::Text, FieldType::Text, std::move(text), position);
}

BoundPtr MakeInfix(std::string_view symbol, FieldType type, BoundPtr left, BoundPtr right) {
    if (IsRow(symbol) && left->kind == BoundKind::Infix && left->text == symbol) {
        left->operands.push_back(std::move(right));
        return left;
    }
    const std::size_t position = left->position;
    BoundPtr infix = MakeBound(BoundKind::Infix, type, std::string(symbol), position);
    infix->operands.reserve(2);
    infix->operands.push_back(std::move(left));
    infix->operands.push_back(std::move(right));
    return infix;
}

BoundPtr MakePrefix(std::string_view symbol, FieldType type, BoundPtr operand) {
    BoundPtr prefix = MakeBound(BoundKind::Prefix, type, std::string(symbol), operand->position);
    prefix->operands.push_back(std::move(operand));
    return prefix;
}

std::optional<FieldType> CommonType(std::span<const BoundExpression* const> values) {
    std::optional<FieldType> common;
    bool same = true;
    bool numbers = true;
    bool real = false;
    const auto has = [&](FieldType type) {
        return std::ranges::any_of(values, [&](const auto* value) { return value->Is(type); });
    };
    for (const BoundExpression* value : values) {
        if (!value->type) continue;
        same = same && (!common || common == value->type);
        common = value->type;
        numbers = numbers && IsNumber(*value->type);
        real = real || (value->Is(FieldType::Double) && !value->IsNumberLiteral());
    }
    if (same) return common;
    if (!numbers) return has(FieldType::Memo) ? FieldType::Memo : FieldType::Text;
    // A double may have more digits than money can hold; a literal shows whether it has.
    if (real) return FieldType::Double;
    for (const FieldType type : {FieldType::Currency, FieldType::Double, FieldType::Long}) {
        if (has(type)) return type;
    }
    return FieldType::Integer;
}

} // namespace platform::dialect
