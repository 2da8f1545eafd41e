// Writing and reading of single items.

#include <charconv>
#include <cmath>
#include <cstring>

#include "exchange/PortFile.h"
#include "platform/values/Conversions.h"
#include "platform/values/Text.h"

namespace exchange {

using platform::Cell;
using platform::FieldType;

namespace {

void AppendWhole(std::string& line, std::int64_t number) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number);
    line.append(digits, end.ptr);
}

/// Writes an amount given in ten-thousandths, with as many decimals as it needs.
void AppendMoney(std::string& line, std::int64_t scaled) {
    if (scaled < 0) line += '-';
    const std::uint64_t size =
        scaled < 0 ? 0 - static_cast<std::uint64_t>(scaled) : static_cast<std::uint64_t>(scaled);
    AppendWhole(line, static_cast<std::int64_t>(size / 10'000));
    std::uint64_t rest = size % 10'000;
    if (rest == 0) return;
    char decimals[5] = {'.', '0', '0', '0', '0'};
    int count = 5;
    for (int i = 4; i > 0; --i, rest /= 10)
        decimals[i] = static_cast<char>('0' + rest % 10);
    while (decimals[count - 1] == '0')
        --count;
    line.append(decimals, static_cast<std::size_t>(count));
}

/// Writes a value that another tool stored in a form unlike its field's.
void AppendOther(std::string& line, const Cell& cell, FieldType type) {
    const platform::Value value = platform::ReadCell(cell, type);
    if (std::holds_alternative<std::string>(value.Held())) {
        AppendPortText(line, value.AsText());
    } else {
        line += value.AsText();
    }
}

/// Reads a bare whole number of our own files; the general conversion handles everything else.
bool ReadWhole(std::string_view text, std::int64_t& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Reads a bare amount with at most four decimals.
bool ReadMoney(std::string_view text, std::int64_t& scaled) {
    constexpr std::size_t kMostDigits = 14; // that can't overflow
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t decimals = text.size() - std::min(point + 1, text.size());
    if (point == 0 || point > kMostDigits || decimals > 4) return false;
    std::int64_t units = 0;
    std::int64_t rest = 0;
    if (!ReadWhole(text.substr(0, point), units) || units < 0) return false;
    if (decimals > 0) {
        const std::string_view digits = text.substr(point + 1);
        if (digits.front() < '0' || digits.front() > '9' || !ReadWhole(digits, rest)) return false;
    }
    for (std::size_t i = decimals; i < 4; ++i)
        rest *= 10;
    scaled = units * 10'000 + rest;
    if (negative) scaled = -scaled;
    return true;
}

bool ReadDouble(std::string_view text, double& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && std::isfinite(number);
}

/// Returns the value between # marks: Yes/No, null, or a date.
platform::Value MarkedValue(std::string_view text) {
    const std::string_view word = text.substr(1, text.size() - 2);
    if (platform::EqualIgnoringCase(word, "TRUE")) return true;
    if (platform::EqualIgnoringCase(word, "FALSE")) return false;
    if (platform::EqualIgnoringCase(word, "NULL")) return {};
    if (const auto day = platform::Date::TryParse(word)) return *day;
    return word;
}

bool IsText(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

bool FastCell(std::string_view text, FieldType type, Cell& cell) {
    std::int64_t number = 0;
    double real = 0;
    switch (type) {
        case FieldType::Integer:
            if (!ReadWhole(text, number) || !std::in_range<std::int16_t>(number)) return false;
            break;
        case FieldType::Long:
            if (!ReadWhole(text, number) || !std::in_range<std::int32_t>(number)) return false;
            break;
        case FieldType::Currency:
            if (!ReadMoney(text, number)) return false;
            break;
        case FieldType::Double:
            if (!ReadDouble(text, real)) return false;
            cell = Cell::OfReal(real);
            return true;
        case FieldType::Boolean:
            if (text != "#TRUE#" && text != "#FALSE#") return false;
            number = text == "#TRUE#" ? 1 : 0;
            break;
        default:
            return false;
    }
    cell = Cell::OfInteger(number);
    return true;
}

} // namespace

void AppendPortText(std::string& line, std::string_view text) {
    line += '"';
    for (;;) {
        const std::size_t quote = text.find('"');
        if (quote == std::string_view::npos) break;
        line.append(text, 0, quote + 1);
        line += '"';
        text.remove_prefix(quote + 1);
    }
    line += text;
    line += '"';
}

void AppendPortItem(std::string& line, const Cell& cell, FieldType type) {
    const bool isWhole = cell.kind == Cell::Kind::Integer;
    if (cell.kind == Cell::Kind::Null) {
        line += "\"\"";
    } else if (IsText(type) && (cell.kind == Cell::Kind::Text || cell.kind == Cell::Kind::Blob)) {
        AppendPortText(line, cell.bytes);
    } else if (isWhole && type == FieldType::Currency) {
        AppendMoney(line, cell.integer);
    } else if (isWhole && type == FieldType::Boolean) {
        line += cell.integer != 0 ? "#TRUE#" : "#FALSE#";
    } else if (isWhole && (type == FieldType::Long || type == FieldType::Integer)) {
        AppendWhole(line, cell.integer);
    } else if (cell.kind == Cell::Kind::Real && type == FieldType::Double) {
        line += platform::NumberToText(cell.real);
    } else {
        AppendOther(line, cell, type);
    }
}

Cell CellOfItem(const PortItem& item, FieldType type, std::string& scratch) {
    const bool isMarked = !item.quoted && item.text.size() > 2 && item.text.starts_with('#') &&
                          item.text.ends_with('#');
    if (IsText(type) && !isMarked) return Cell::OfText(item.text);
    if (item.text.empty()) return {};
    Cell cell;
    if (!item.quoted && FastCell(item.text, type, cell)) return cell;
    const platform::Value value = isMarked ? MarkedValue(item.text) : platform::Value(item.text);
    const Cell stored = platform::StoreCell(value, type, scratch);
    if (stored.kind == Cell::Kind::Text && stored.bytes.data() != scratch.data()) {
        scratch = stored.bytes; // the value that holds it ends here
        return Cell::OfText(scratch);
    }
    return stored;
}

} // namespace exchange
