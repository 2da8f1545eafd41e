#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace platform::dialect {

namespace {

/// A number literal shifted by the four decimals of stored money, exactly.
std::string ScaledLiteral(std::string_view digits) {
    constexpr std::size_t kDecimals = 4;
    if (digits.find_first_of("eE") != std::string_view::npos) {
        return NumberToText(StrToDouble(digits) * static_cast<double>(Currency::kScale));
    }
    const std::size_t point = digits.find('.');
    std::string scaled(digits.substr(0, point));
    std::string decimals(point == std::string_view::npos ? "" : digits.substr(point + 1));
    if (decimals.size() < kDecimals) decimals.append(kDecimals - decimals.size(), '0');
    scaled += decimals.substr(0, kDecimals);
    if (decimals.size() > kDecimals) scaled += "." + decimals.substr(kDecimals);
    return scaled;
}

} // namespace

Typed Translator::Binary(const Expression& expression) {
    const std::string_view symbol = expression.text;
    if (symbol == "AND" || symbol == "OR") return Chain(expression);
    if (symbol == "XOR" || symbol == "EQV") {
        return MakeTyped(
            fmt::format("(({}) {} ({}))", Condition(*expression.operands[0]),
                        symbol == "XOR" ? "<>" : "=", Condition(*expression.operands[1])),
            FieldType::Boolean);
    }
    const Typed left = Expr(*expression.operands[0]);
    const Typed right = Expr(*expression.operands[1]);
    if (symbol == "LIKE") return Like(expression, left, right);
    if (symbol == "&") {
        return MakeTyped(
            fmt::format("(IFNULL({}, '') || IFNULL({}, ''))", ToText(left), ToText(right)),
            FieldType::Text);
    }
    if (symbol == "+") return Add(expression, left, right);
    if (symbol.find_first_of("-*/\\^") == 0 || symbol == "MOD") {
        return Arithmetic(expression, left, right);
    }
    return Compare(symbol, left, right);
}

/// `a AND b AND c` in one pair of parentheses: the engine's parser bears few inside each other.
Typed Translator::Chain(const Expression& expression) {
    std::vector<const Expression*> conditions;
    const Expression* link = &expression;
    for (; link->kind == ExpressionKind::Binary && link->text == expression.text;
         link = link->operands[0].get()) {
        conditions.push_back(link->operands[1].get());
    }
    std::string sql = "(" + Condition(*link);
    for (auto condition = conditions.rbegin(); condition != conditions.rend(); ++condition) {
        sql += fmt::format(" {} {}", expression.text, Condition(**condition));
    }
    return MakeTyped(sql + ")", FieldType::Boolean);
}

Typed Translator::Add(const Expression& expression, const Typed& left, const Typed& right) {
    const bool leftJoins = left.IsText() || !left.type;
    const bool rightJoins = right.IsText() || !right.type;
    if (leftJoins && rightJoins) {
        // Unlike `&`, a null part makes the whole null.
        return MakeTyped(fmt::format("({} || {})", ToText(left), ToText(right)), FieldType::Text);
    }
    if (left.IsText() || right.IsText()) {
        Fault(expression.position, "'+' can't join a text and a number; use '&'");
    }
    return Arithmetic(expression, left, right);
}

Typed Translator::Arithmetic(const Expression& expression, const Typed& left, const Typed& right) {
    const std::string_view symbol = expression.text;
    const bool isSum = symbol == "+" || symbol == "-";
    if (left.Is(FieldType::Date) || right.Is(FieldType::Date)) {
        const bool isSpan = symbol == "-" && left.Is(FieldType::Date) && right.Is(FieldType::Date);
        const FieldType type =
            isSpan ? FieldType::Long : (isSum ? FieldType::Date : FieldType::Double);
        return MakeTyped(fmt::format("({} {} {})", ToNumber(left), symbol, ToNumber(right)), type);
    }
    const bool money = left.Is(FieldType::Currency) || right.Is(FieldType::Currency);
    if (money && (isSum || symbol == "*")) return MoneyArithmetic(expression, left, right);
    if (symbol == "/") {
        return MakeTyped(fmt::format("(CAST({} AS REAL) / {})", ToNumber(left), ToNumber(right)),
                         FieldType::Double);
    }
    if (symbol == "^") {
        return MakeTyped(fmt::format("vestrel_power({}, {})", ToNumber(left), ToNumber(right)),
                         FieldType::Double);
    }
    if (symbol == "\\" || symbol == "MOD") {
        return MakeTyped(fmt::format("(vestrel_whole({}) {} vestrel_whole({}))", ToNumber(left),
                                     symbol == "MOD" ? "%" : "/", ToNumber(right)),
                         FieldType::Long);
    }
    const auto isWhole = [](const Typed& value) {
        return value.IsWhole() || value.Is(FieldType::Boolean);
    };
    const FieldType type = isWhole(left) && isWhole(right) ? FieldType::Long : FieldType::Double;
    return MakeTyped(fmt::format("({} {} {})", ToNumber(left), symbol, ToNumber(right)), type);
}

Typed Translator::MoneyArithmetic(const Expression& expression, const Typed& left,
                                  const Typed& right) {
    if (expression.text != "*") {
        return MakeTyped(
            fmt::format("vestrel_exact({} {} {})", ToMoney(left), expression.text, ToMoney(right)),
            FieldType::Currency);
    }
    const Typed& amount = left.Is(FieldType::Currency) ? left : right;
    const Typed& factor = left.Is(FieldType::Currency) ? right : left;
    if (factor.IsWhole() || factor.Is(FieldType::Boolean)) {
        return MakeTyped(fmt::format("vestrel_exact({} * {})", amount.sql, ToNumber(factor)),
                         FieldType::Currency);
    }
    return MakeTyped(fmt::format("({} * {})", ToNumber(left), ToNumber(right)), FieldType::Double);
}

std::string Translator::MoneyOperand(const Typed& value) {
    const bool isNumberLiteral =
        value.literal != nullptr && value.literal->kind == ExpressionKind::Number;
    if (isNumberLiteral) return ScaledLiteral(value.literal->text);
    if (value.Is(FieldType::Double)) return fmt::format("({} * 10000.0)", value.sql);
    return ToMoney(value);
}

Typed Translator::Compare(std::string_view symbol, const Typed& left, const Typed& right) {
    std::string a;
    std::string b;
    std::string_view collation;
    if (!left.type || !right.type) {
        const auto type = CommonType(left.type, right.type).value_or(FieldType::Text);
        a = left.type ? left.sql : ToType(left, type);
        b = right.type ? right.sql : ToType(right, type);
        if (type == FieldType::Text || type == FieldType::Memo) collation = kTextCollation;
    } else if (left.IsText() && right.IsText()) {
        a = left.sql;
        b = right.sql;
        collation = kTextCollation;
    } else if (left.Is(FieldType::Currency) || right.Is(FieldType::Currency)) {
        a = MoneyOperand(left);
        b = MoneyOperand(right);
    } else if (left.Is(FieldType::Date) || right.Is(FieldType::Date)) {
        a = ToDate(left);
        b = ToDate(right);
    } else if (left.Is(FieldType::Boolean) && right.Is(FieldType::Boolean)) {
        a = left.sql;
        b = right.sql;
    } else if (left.Is(FieldType::Boolean) && right.IsText()) {
        a = left.sql;
        b = ToCondition(right);
    } else if (right.Is(FieldType::Boolean) && left.IsText()) {
        a = ToCondition(left);
        b = right.sql;
    } else if ((left.IsText() && left.literal == nullptr) ||
               (right.IsText() && right.literal == nullptr)) {
        // A number against a field of text: the digits as they would be written there.
        a = ToText(left);
        b = ToText(right);
        collation = kTextCollation;
    } else {
        a = ToNumber(left);
        b = ToNumber(right);
    }
    return MakeTyped(fmt::format("({} {} {}{})", a, symbol, b, collation), FieldType::Boolean);
}

Typed Translator::Like(const Expression& expression, const Typed& left, const Typed& right) {
    return MakeTyped(fmt::format("({}vestrel_like({}, {}))", expression.negated ? "NOT " : "",
                                 ToText(left), ToText(right)),
                     FieldType::Boolean);
}

} // namespace platform::dialect
