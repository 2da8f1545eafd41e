#include <fmt/format.h>

#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

Binding BindingOf(const BoundExpression& expression) {
    switch (expression.kind) {
        case BoundKind::Number:
            return expression.text[0] == '-' ? Binding::Sign : Binding::Value;
        case BoundKind::Prefix:
            return expression.text == "NOT" ? Binding::Not : Binding::Sign;
        case BoundKind::Infix:
            break;
        case BoundKind::IsNull:
        case BoundKind::Between:
        case BoundKind::In:
        case BoundKind::InQuery:
            return Binding::Equal;
        default:
            return Binding::Value;
    }
    const std::string_view symbol = expression.text;
    if (symbol == "OR") return Binding::Or;
    if (symbol == "AND") return Binding::And;
    if (symbol == "||") return Binding::Join;
    if (symbol == "=" || symbol == "<>") return Binding::Equal;
    if (symbol[0] == '<' || symbol[0] == '>') return Binding::Order;
    return symbol == "+" || symbol == "-" ? Binding::Sum : Binding::Product;
}

Binding Next(Binding binding) {
    return static_cast<Binding>(static_cast<int>(binding) + 1);
}

} // namespace

void Emitter::Emit(const BoundExpression& expression, Binding least) {
    const bool enclosed = BindingOf(expression) < least;
    if (enclosed) sql_ += '(';
    EmitNode(expression);
    if (enclosed) sql_ += ')';
}

void Emitter::EmitNode(const BoundExpression& expression) {
    switch (expression.kind) {
        case BoundKind::Number:
            sql_ += expression.text;
            break;
        case BoundKind::Text:
            sql_ += EngineText(expression.text);
            break;
        case BoundKind::Null:
            sql_ += "NULL";
            break;
        case BoundKind::Parameter:
            fmt::format_to(std::back_inserter(sql_), "?{}", expression.parameter + 1);
            break;
        case BoundKind::Column:
            sql_ += EngineName(expression.table);
            sql_ += '.';
            sql_ += EngineName(expression.text);
            break;
        case BoundKind::Prefix:
            sql_ += expression.text;
            if (expression.text == "NOT") sql_ += ' ';
            Emit(*expression.operands[0],
                 expression.text == "NOT" ? Binding::Not : Next(Binding::Sign));
            break;
        case BoundKind::Infix:
            EmitInfix(expression);
            break;
        case BoundKind::IsNull:
        case BoundKind::Between:
        case BoundKind::In:
        case BoundKind::InQuery:
            EmitPredicate(expression);
            break;
        case BoundKind::Exists:
            sql_ += "EXISTS ";
            EmitNested(*expression.query);
            break;
        case BoundKind::Subquery:
            EmitNested(*expression.query);
            break;
        case BoundKind::Call:
            EmitCall(expression);
            break;
        case BoundKind::Cast:
            sql_ += "CAST(";
            Emit(*expression.operands[0]);
            sql_.append(" AS ").append(expression.text).append(")");
            break;
        case BoundKind::Case:
            EmitCase(expression);
            break;
    }
}

void Emitter::EmitInfix(const BoundExpression& expression) {
    const Binding own = BindingOf(expression);
    if (own == Binding::Or || own == Binding::And || own == Binding::Join) {
        return EmitRow(expression, 0, expression.operands.size());
    }
    const bool compares = own == Binding::Equal || own == Binding::Order;
    // A comparison's operands need parentheses only if they bind less tightly than a sum.
    const Binding left = compares ? Binding::Sum : own;
    EmitCompared(*expression.operands[0], left, expression.ignoresCase);
    sql_.append(" ").append(expression.text).append(" ");
    Emit(*expression.operands[1], compares ? left : Next(own));
}

void Emitter::EmitRow(const BoundExpression& expression, std::size_t first, std::size_t end) {
    // The engine rejects expressions more than a thousand operators deep; splitting long rows in
    // halves keeps them shallow.
    constexpr std::size_t kLongest = 50;
    if (end - first > kLongest) {
        const std::size_t middle = first + (end - first) / 2;
        sql_ += '(';
        EmitRow(expression, first, middle);
        sql_.append(") ").append(expression.text).append(" (");
        EmitRow(expression, middle, end);
        sql_ += ')';
        return;
    }
    for (std::size_t i = first; i < end; ++i) {
        if (i > first) sql_.append(" ").append(expression.text).append(" ");
        Emit(*expression.operands[i], Next(BindingOf(expression)));
    }
}

void Emitter::EmitCompared(const BoundExpression& expression, Binding least, bool ignoresCase) {
    Emit(expression, ignoresCase ? Binding::Collate : least);
    if (ignoresCase) sql_ += kTextCollation;
}

void Emitter::EmitPredicate(const BoundExpression& expression) {
    EmitCompared(*expression.operands[0], Binding::Sum, expression.ignoresCase);
    const std::string_view no = expression.negated ? "NOT " : "";
    switch (expression.kind) {
        case BoundKind::IsNull:
            sql_.append(" IS ").append(no).append("NULL");
            break;
        case BoundKind::Between:
            sql_.append(" ").append(no).append("BETWEEN ");
            Emit(*expression.operands[1], Binding::Sum);
            sql_ += " AND ";
            Emit(*expression.operands[2], Binding::Sum);
            break;
        case BoundKind::In:
            sql_.append(" ").append(no).append("IN (");
            EmitList(expression, 1);
            sql_ += ')';
            break;
        default:
            sql_.append(" ").append(no).append("IN ");
            EmitNested(*expression.query);
            break;
    }
}

void Emitter::EmitCall(const BoundExpression& expression) {
    sql_.append(expression.text).append("(");
    if (expression.operands.empty() && expression.text == "COUNT") sql_ += '*';
    if (expression.ignoresCase) {
        EmitCompared(*expression.operands[0], Binding::Or, true);
    } else {
        EmitList(expression, 0);
    }
    sql_ += ')';
}

void Emitter::EmitCase(const BoundExpression& expression) {
    sql_ += "CASE";
    const std::size_t last = expression.operands.size() - 1;
    for (std::size_t i = 0; i < last; i += 2) {
        sql_ += " WHEN ";
        Emit(*expression.operands[i]);
        sql_ += " THEN ";
        Emit(*expression.operands[i + 1]);
    }
    sql_ += " ELSE ";
    Emit(*expression.operands[last]);
    sql_ += " END";
}

void Emitter::EmitList(const BoundExpression& expression, std::size_t first) {
    for (std::size_t i = first; i < expression.operands.size(); ++i) {
        if (i > first) sql_ += ", ";
        Emit(*expression.operands[i]);
    }
}

} // namespace platform::dialect
