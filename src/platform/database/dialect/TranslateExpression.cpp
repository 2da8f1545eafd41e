#include <algorithm>
#include <charconv>

#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Token.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

Typed Translator::Expr(const Expression& expression) {
    // The engine takes no more; a chain of additions is as deep as it is long.
    constexpr int kDeepest = 900;
    if (depth_ == kDeepest) Fault(expression.position, "The expression is too long");
    ++depth_;
    Typed typed = TranslateExpression(expression);
    --depth_;
    return typed;
}

Typed Translator::TranslateExpression(const Expression& expression) {
    switch (expression.kind) {
        case ExpressionKind::Number:
            return NumberLiteral(expression);
        case ExpressionKind::Text:
            return {EngineText(LiteralText(expression)), FieldType::Text, {}, &expression};
        case ExpressionKind::Date:
            return DateLiteral(expression);
        case ExpressionKind::Boolean:
            return MakeTyped(EqualIgnoringCase(expression.text, "TRUE") ? "1" : "0",
                             FieldType::Boolean);
        case ExpressionKind::Null:
            return {"NULL", {}, {}, nullptr};
        case ExpressionKind::Parameter:
            return {
                fmt::format("?{}", expression.parameter + 1), {}, expression.parameter, nullptr};
        case ExpressionKind::Column:
            return ColumnReference(expression);
        case ExpressionKind::Star:
            Fault(expression.position, "'*' stands for no single value");
        case ExpressionKind::Function:
            return TranslateCall(*this, expression);
        case ExpressionKind::Negate:
            return Negate(expression);
        case ExpressionKind::Not:
            return MakeTyped(fmt::format("(NOT {})", Condition(*expression.operands[0])),
                             FieldType::Boolean);
        case ExpressionKind::Binary:
            return Binary(expression);
        case ExpressionKind::IsNull:
            return MakeTyped(fmt::format("({} IS {}NULL)", Expr(*expression.operands[0]).sql,
                                         expression.negated ? "NOT " : ""),
                             FieldType::Boolean);
        case ExpressionKind::Between:
            return Between(expression);
        case ExpressionKind::In:
            return In(expression);
        case ExpressionKind::InQuery:
            return InQuery(expression);
        case ExpressionKind::Exists:
            return MakeTyped(fmt::format("EXISTS ({})", NestedQuery(*expression.query).sql),
                             FieldType::Boolean);
        case ExpressionKind::Subquery:
            return Subquery(expression);
    }
    Fault(expression.position, "This can't be reckoned");
}

std::string Translator::Condition(const Expression& expression) {
    return ToCondition(Expr(expression));
}

void Translator::Fault(std::size_t position, std::string_view message) const {
    ThrowFault(text_, position, message);
}

Typed Translator::NumberLiteral(const Expression& expression) {
    std::int32_t whole = 0;
    const char* const end = expression.text.data() + expression.text.size();
    const auto read = std::from_chars(expression.text.data(), end, whole);
    if (read.ec == std::errc() && read.ptr == end) {
        return {std::to_string(whole), FieldType::Long, {}, &expression};
    }
    std::string sql(expression.text);
    if (sql.find_first_of(".eE") == std::string::npos) sql += ".0";
    return {std::move(sql), FieldType::Double, {}, &expression};
}

Typed Translator::DateLiteral(const Expression& expression) {
    const auto date = Date::TryParse(expression.text);
    if (!date) Fault(expression.position, fmt::format("#{}# is no day", expression.text));
    return MakeTyped(std::to_string(date->Serial()), FieldType::Date);
}

Typed Translator::ColumnReference(const Expression& expression) {
    for (const Scope* scope = scope_; scope != nullptr; scope = scope->outer) {
        std::optional<Typed> found;
        for (const ScopeSource& source : scope->sources) {
            if (!expression.table.empty() && !EqualIgnoringCase(expression.table, source.alias)) {
                continue;
            }
            std::optional<FieldType> type;
            std::string_view name;
            if (source.table != nullptr) {
                if (const Column* column = source.table->Find(expression.text)) {
                    type = column->type;
                    name = column->name;
                }
            } else {
                for (const ResultColumn& column : source.columns) {
                    if (!EqualIgnoringCase(column.name, expression.text)) continue;
                    type = column.type;
                    name = column.name;
                    break;
                }
            }
            if (!type) continue;
            if (found) {
                Fault(expression.position,
                      fmt::format("Field '{}' is in more than one table", expression.text));
            }
            found = MakeTyped(EngineName(source.alias) + "." + EngineName(name), *type);
        }
        if (found) return *std::move(found);
    }
    const std::string table =
        expression.table.empty() ? std::string() : std::string(expression.table) + ".";
    Fault(expression.position, fmt::format("Unknown field '{}{}'", table, expression.text));
}

Typed Translator::Negate(const Expression& expression) {
    const Typed value = Expr(*expression.operands[0]);
    if (value.Is(FieldType::Currency)) {
        return MakeTyped(fmt::format("(-{})", value.sql), FieldType::Currency);
    }
    const FieldType type =
        value.IsWhole() || value.Is(FieldType::Boolean) ? FieldType::Long : FieldType::Double;
    return MakeTyped(fmt::format("(-{})", ToNumber(value)), type);
}

Typed Translator::Between(const Expression& expression) {
    const Typed value = Expr(*expression.operands[0]);
    const std::string from = Compare(">=", value, Expr(*expression.operands[1])).sql;
    const std::string to = Compare("<=", value, Expr(*expression.operands[2])).sql;
    return MakeTyped(fmt::format("({}({} AND {}))", expression.negated ? "NOT " : "", from, to),
                     FieldType::Boolean);
}

Typed Translator::In(const Expression& expression) {
    const Typed value = Expr(*expression.operands[0]);
    std::vector<Typed> items;
    for (std::size_t i = 1; i < expression.operands.size(); ++i) {
        items.push_back(Expr(*expression.operands[i]));
    }
    const auto isAlike = [&](const Typed& item) {
        return (value.IsWhole() && item.IsWhole()) || (value.IsText() && item.IsText());
    };
    const std::string_view negation = expression.negated ? "NOT " : "";
    if (std::all_of(items.begin(), items.end(), isAlike)) {
        std::string list;
        for (const Typed& item : items)
            list += (list.empty() ? "" : ", ") + item.sql;
        return MakeTyped(
            fmt::format("({}{} {}IN ({}))", value.sql,
                        value.IsText() ? kTextCollation : std::string_view(), negation, list),
            FieldType::Boolean);
    }
    // Where types meet, each item is compared as it would be by itself.
    std::string sql;
    for (const Typed& item : items) {
        sql += (sql.empty() ? "" : " OR ") + Compare("=", value, item).sql;
    }
    return MakeTyped(fmt::format("({}({}))", negation, sql), FieldType::Boolean);
}

Typed Translator::InQuery(const Expression& expression) {
    const Typed value = Expr(*expression.operands[0]);
    const TranslatedQuery query = NestedQuery(*expression.query);
    if (query.columns.size() != 1) {
        Fault(expression.position, "IN needs a query of one column");
    }
    const FieldType type = query.columns[0].type;
    std::string left = ToType(value, type);
    if (type == FieldType::Text || type == FieldType::Memo) left += kTextCollation;
    return MakeTyped(
        fmt::format("({} {}IN ({}))", left, expression.negated ? "NOT " : "", query.sql),
        FieldType::Boolean);
}

Typed Translator::Subquery(const Expression& expression) {
    const TranslatedQuery query = NestedQuery(*expression.query);
    if (query.columns.size() != 1) {
        Fault(expression.position, "A query that stands for a value needs one column");
    }
    return MakeTyped(fmt::format("({})", query.sql), query.columns[0].type);
}

} // namespace platform::dialect
