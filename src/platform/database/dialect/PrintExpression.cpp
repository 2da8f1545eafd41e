#include "platform/database/dialect/Syntax.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

bool IsOperator(const Expression& expression) {
    switch (expression.kind) {
        case ExpressionKind::Negate:
        case ExpressionKind::Not:
        case ExpressionKind::Binary:
        case ExpressionKind::IsNull:
        case ExpressionKind::Between:
        case ExpressionKind::In:
        case ExpressionKind::InQuery:
            return true;
        default:
            return false;
    }
}

void PrintOperand(std::string& out, const Expression& operand) {
    const bool enclosed = IsOperator(operand);
    if (enclosed) out += '(';
    Print(out, operand);
    if (enclosed) out += ')';
}

void PrintOperands(std::string& out, const Expression& expression, std::size_t first,
                   std::string_view separator) {
    for (std::size_t i = first; i < expression.operands.size(); ++i) {
        if (i > first) out += separator;
        PrintOperand(out, *expression.operands[i]);
    }
}

void PrintName(std::string& out, const Expression& expression) {
    if (!expression.table.empty()) out.append("[").append(expression.table).append("].");
    out.append("[").append(expression.text).append("]");
}

void PrintBinary(std::string& out, const Expression& expression) {
    std::string separator = " ";
    if (expression.negated) separator += "NOT ";
    separator.append(expression.text).append(" ");
    PrintOperands(out, expression, 0, separator);
}

void PrintPredicate(std::string& out, const Expression& expression, std::string_view word) {
    PrintOperand(out, *expression.operands[0]);
    out.append(expression.negated ? " NOT " : " ").append(word);
}

} // namespace

void Print(std::string& out, const Expression& expression) {
    switch (expression.kind) {
        case ExpressionKind::Number:
        case ExpressionKind::Null:
        case ExpressionKind::Boolean:
            out += ToUpper(expression.text);
            break;
        case ExpressionKind::Text:
            out.append(1, expression.quote).append(expression.text).append(1, expression.quote);
            break;
        case ExpressionKind::Date:
            out.append("#").append(expression.text).append("#");
            break;
        case ExpressionKind::Parameter:
            out += '?';
            break;
        case ExpressionKind::Column:
            PrintName(out, expression);
            break;
        case ExpressionKind::Star:
            if (!expression.table.empty()) out.append("[").append(expression.table).append("].");
            out += '*';
            break;
        case ExpressionKind::Function:
            out.append(expression.text).append("(");
            PrintOperands(out, expression, 0, ", ");
            out += ')';
            break;
        case ExpressionKind::Negate:
        case ExpressionKind::Not:
            out += expression.kind == ExpressionKind::Not ? "NOT " : "-";
            PrintOperand(out, *expression.operands[0]);
            break;
        case ExpressionKind::Binary:
            PrintBinary(out, expression);
            break;
        case ExpressionKind::IsNull:
            PrintOperand(out, *expression.operands[0]);
            out += expression.negated ? " IS NOT NULL" : " IS NULL";
            break;
        case ExpressionKind::Between:
            PrintPredicate(out, expression, "BETWEEN ");
            PrintOperands(out, expression, 1, " AND ");
            break;
        case ExpressionKind::In:
            PrintPredicate(out, expression, "IN (");
            PrintOperands(out, expression, 1, ", ");
            out += ')';
            break;
        case ExpressionKind::InQuery:
            PrintPredicate(out, expression, "IN (");
            Print(out, *expression.query);
            out += ')';
            break;
        case ExpressionKind::Exists:
        case ExpressionKind::Subquery:
            out += expression.kind == ExpressionKind::Exists ? "EXISTS (" : "(";
            Print(out, *expression.query);
            out += ')';
            break;
    }
}

} // namespace platform::dialect
