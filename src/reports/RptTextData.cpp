// The commands of a [TEXT] section that give values: queries, calculations and their formats.

#include <charconv>
#include <cmath>
#include <optional>

#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "reports/Queries.h"
#include "reports/ReportError.h"
#include "reports/clsRptText.h"

namespace reports {

namespace {

bool IsNumeric(char c) {
    return (c >= '0' && c <= '9') || c == '.';
}

/// Returns a plain number, with or without a sign. An amount in parentheses is not one: a negative
/// amount that is already formatted can't be calculated with.
std::optional<double> Operand(std::string_view text) {
    const std::size_t digits = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    if (digits == text.size() || !IsNumeric(text[digits])) return std::nullopt;
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const auto read =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

/// Calculates "A op B", where A may have a sign; 0 for an unknown or missing operator. Returns
/// nothing if an operand or the result is not a number.
std::optional<double> Calculate(std::string_view expression) {
    std::size_t at = 1;
    while (at < expression.size() && IsNumeric(expression[at]))
        ++at;
    if (at >= expression.size()) return 0;
    const auto first = Operand(expression.substr(0, at));
    const auto second = Operand(expression.substr(at + 1));
    if (!first || !second) return std::nullopt;
    double result = 0;
    switch (expression[at]) {
        case '+':
            result = *first + *second;
            break;
        case '-':
            result = *first - *second;
            break;
        case '/':
            result = *first / *second;
            break;
        case '*':
            result = *first * *second;
            break;
        case '^':
            result = std::pow(*first, *second);
            break;
        default:
            break;
    }
    if (!std::isfinite(result)) return std::nullopt;
    return result;
}

} // namespace

void clsRptText::RunSql(const TextCommand& command) {
    platform::Recordset row;
    if (!OpenQuery(row, Expand(command.Text))) return;
    for (std::size_t i = 0; i < row.FieldCount(); ++i) {
        const platform::Field field = row[i];
        platform::Value value = field.Value();
        if (field.Type() == platform::FieldType::Currency)
            value = platform::Format(value, platform::kMoneyFormat);
        variables_.push_back(
            {field.Name(), std::move(value), static_cast<std::int16_t>(field.Type())});
    }
}

void clsRptText::RunCalc(const TextCommand& command) {
    std::string text = Expand(command.Text);
    std::erase_if(text, [](char c) { return c == ' ' || c == ','; });
    const auto equals = text.find('=');
    std::string name = text.substr(0, equals);
    std::erase(name, '%');
    const auto result =
        Calculate(equals == std::string::npos ? std::string_view()
                                              : std::string_view(text).substr(equals + 1));
    if (result) variables_.push_back({std::move(name), *result, 0});
}

void clsRptText::ApplyTagFormats() {
    for (const TagFormatCommand& format : tagFormats_) {
        for (ReportVariable& variable : variables_) {
            if (!platform::EqualIgnoringCase(variable.Name, format.Tag)) continue;
            AtLine(format.FileLine,
                   [&] { variable.Value = platform::Format(variable.Value, format.Format); });
            break;
        }
    }
}

} // namespace reports
