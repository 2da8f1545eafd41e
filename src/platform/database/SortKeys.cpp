#include "platform/database/SortKeys.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;
constexpr std::uint64_t kLast = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t kMoreLetters = kSortLetters + 2;

// Returns the number for a whole number; 0 is reserved for null.
std::uint64_t OfWhole(std::int64_t number) {
    return std::max<std::uint64_t>(1, static_cast<std::uint64_t>(number) ^ kSignBit);
}

std::uint64_t OfReal(double number) {
    if (number == 0) number = 0; // the negative zero too
    const auto bits = std::bit_cast<std::uint64_t>(number);
    return std::max<std::uint64_t>(1, (bits & kSignBit) != 0 ? ~bits : bits | kSignBit);
}

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

// Returns the letters in lower case, and in the last byte their count, which distinguishes a text
// without further letters from a null.
std::uint64_t OfText(std::string_view text, std::size_t passed) {
    std::string lower;
    if (!std::ranges::all_of(text.substr(0, passed + kSortLetters), IsAscii)) {
        lower = ToLower(text);
        text = lower;
    }
    text.remove_prefix(std::min(passed, text.size()));
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < kSortLetters; ++i) {
        auto letter = static_cast<unsigned char>(i < text.size() ? text[i] : '\0');
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<unsigned char>(letter + 32);
        number = number << 8 | letter;
    }
    return number << 8 | std::min<std::uint64_t>(text.size() + 1, kMoreLetters);
}

// Returns the number for any value but a text. Money and booleans are whole numbers as they are
// stored; a date may have a time of day.
std::uint64_t OfNumber(const Cell& cell, FieldType type) {
    const bool real = type == FieldType::Double || type == FieldType::Date;
    switch (cell.kind) {
        case Cell::Kind::Integer:
            return real ? OfReal(static_cast<double>(cell.integer)) : OfWhole(cell.integer);
        case Cell::Kind::Real:
            if (real) return OfReal(cell.real);
            if (cell.real >= 0x1p63) return kLast;
            return cell.real < -0x1p63 ? 1 : OfWhole(static_cast<std::int64_t>(cell.real));
        default:
            break;
    }
    const auto day = type == FieldType::Date ? Date::TryParse(cell.bytes) : std::nullopt;
    return day ? OfReal(day->Serial()) : kLast;
}

bool HoldsText(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

// Takes a name in brackets off the front of `text`.
std::string_view TakeBracketed(std::string_view& text) {
    const std::size_t end = text.find(']');
    if (end == std::string_view::npos) throw FieldError("The order lacks a closing bracket.");
    const std::string_view name = text.substr(1, end - 1);
    text.remove_prefix(end + 1);
    return name;
}

// Takes the direction off the end of `item`, if one follows a name. Returns true for descending.
bool TakeDirection(std::string_view& item, bool nameTaken) {
    const std::size_t blank = item.find_last_of(" \t\r\n");
    if (blank == std::string_view::npos && !nameTaken) return false;
    const std::string_view word = blank == std::string_view::npos ? item : item.substr(blank + 1);
    const bool descending = EqualIgnoringCase(word, "DESC");
    if (descending || EqualIgnoringCase(word, "ASC")) {
        item.remove_suffix(word.size());
        item = Trim(item);
    }
    return descending;
}

} // namespace

std::vector<SortItem> ParseSortText(std::string_view text) {
    std::vector<SortItem> items;
    for (bool more = true; more;) {
        text = Trim(text);
        std::string_view name;
        if (text.starts_with('[')) name = TakeBracketed(text);
        const std::size_t comma = text.find(',');
        more = comma != std::string_view::npos;
        std::string_view rest = Trim(text.substr(0, comma));
        const bool bracketed = !name.empty();
        const bool descending = TakeDirection(rest, bracketed);
        if (!bracketed) name = rest;
        if (name.empty() || (bracketed && !rest.empty())) {
            throw FieldError("A field's name is missing in the order.");
        }
        items.push_back({name, descending});
        text = more ? text.substr(comma + 1) : std::string_view();
    }
    return items;
}

std::uint64_t SortNumber(const Cell& cell, FieldType type, std::size_t passed) {
    if (cell.kind == Cell::Kind::Null) return 0;
    if (!HoldsText(type)) return OfNumber(cell, type);
    if (cell.kind == Cell::Kind::Text || cell.kind == Cell::Kind::Blob) {
        return OfText(cell.bytes, passed);
    }
    return OfText(ReadCell(cell, type).AsText(), passed);
}

bool IsUndecided(std::uint64_t sortNumber, FieldType type) {
    return HoldsText(type) && (sortNumber & 0xFF) == kMoreLetters;
}

} // namespace platform
