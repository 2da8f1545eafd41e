#include <algorithm>
#include <charconv>

#include "platform/printing/PrintTable.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

/// Returns the parts of a text between separators; an empty text has no parts.
std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
        if (text.empty() && separator == '|') parts.emplace_back();
    }
    return parts;
}

void ReadWidth(std::string_view text, TableColumn& column) {
    text = Trim(text);
    if (text.ends_with('%')) {
        double percent = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size() - 1, percent);
        if (read.ec == std::errc() && percent > 0 && percent < 10'000) column.percent = percent;
    } else if (const auto width = ParseLength(text)) {
        column.width = std::max(*width, 0);
    }
}

TableColumn ReadColumn(std::string_view text) {
    TableColumn column;
    text = Trim(text);
    const auto end = std::min(text.find_first_of("0123456789."), text.size());
    for (const char mark : text.substr(0, end)) {
        if (mark == '<') column.align = TextAlign::Left;
        if (mark == '>') column.align = TextAlign::Right;
        if (mark == '^') column.align = TextAlign::Center;
        if (mark == '~') column.wrap = Wrap::Ellipsis;
    }
    ReadWidth(text.substr(end), column);
    return column;
}

} // namespace

std::vector<TableColumn> ParseTableFormat(std::string_view format) {
    format = Trim(format);
    if (format.ends_with(';')) format.remove_suffix(1);
    std::vector<TableColumn> columns;
    for (const std::string_view part : Split(format, '|'))
        columns.push_back(ReadColumn(part));
    return columns;
}

bool LooksLikeAmount(std::string_view text) {
    return !text.empty() &&
           text.find_first_not_of("0123456789.,()-+$% ") == std::string_view::npos &&
           text.find_first_of("0123456789") != std::string_view::npos;
}

std::vector<std::vector<std::string>> ParseTableText(std::string_view text) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string_view line : Split(text, ';')) {
        const auto cells = Split(line, '|');
        rows.emplace_back(cells.begin(), cells.end());
        if (cells.empty()) rows.back().emplace_back();
    }
    return rows;
}

} // namespace platform
