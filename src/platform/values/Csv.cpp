#include "platform/values/Csv.h"

#include "platform/values/Conversions.h"

namespace platform {

namespace {

void AppendQuoted(std::string& line, std::string_view text) {
    line += '"';
    for (const char c : text) {
        if (c == '"') line += '"';
        line += c;
    }
    line += '"';
}

} // namespace

void AppendCsvCell(std::string& line, const Value& value) {
    if (value.IsNull()) return;
    if (const auto* text = std::get_if<std::string>(&value.Held())) {
        AppendQuoted(line, *text);
    } else if (const auto* amount = std::get_if<Currency>(&value.Held())) {
        line += MoneyToFixedText(*amount);
    } else {
        line += value.AsText();
    }
}

std::string CsvCell(const Value& value) {
    std::string cell;
    AppendCsvCell(cell, value);
    return cell;
}

std::string CsvText(std::string_view text) {
    std::string quoted;
    AppendQuoted(quoted, text);
    return quoted;
}

} // namespace platform
