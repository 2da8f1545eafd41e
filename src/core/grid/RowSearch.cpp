#include "core/grid/RowSearch.h"

#include <algorithm>

#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core::grid {

namespace {

char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Returns the characters that can occur in a column's cells; empty if any may.
std::string_view LettersOf(const ColumnFormat& format, platform::FieldType type) {
    using platform::FieldType;
    if (format.kind == ColumnFormat::Kind::YesNo) return "yesno ";
    switch (type) {
        case FieldType::Integer:
        case FieldType::Long:
            return format.kind == ColumnFormat::Kind::Plain ? "0123456789- " : std::string_view();
        case FieldType::Currency:
            return format.pattern == platform::kMoneyFormat ? "0123456789.,() "
                                                            : std::string_view();
        case FieldType::Date:
            return format.pattern == platform::kDateFormat ? "0123456789/ " : std::string_view();
        case FieldType::Double:
        case FieldType::Boolean:
        case FieldType::Text:
        case FieldType::Memo:
            return {};
    }
    return {};
}

} // namespace

RowSearch::RowSearch(std::string_view text, const std::vector<ColumnFormat>& formats,
                     const std::vector<platform::FieldType>& types, std::size_t firstColumn)
    : text_(text) {
    isPlain_ = std::ranges::all_of(text_, [](char c) { return static_cast<signed char>(c) >= 0; });
    std::ranges::transform(text_, text_.begin(), Lower);
    for (std::size_t column = firstColumn; column < formats.size(); ++column) {
        const std::string_view letters = LettersOf(formats[column], types[column]);
        if (letters.empty() || text_.find_first_not_of(letters) == std::string::npos) {
            places_.push_back({column, formats[column]});
        }
    }
}

bool RowSearch::Matches(const core::Table& table, std::int64_t row) const {
    return std::ranges::any_of(places_, [&](const Place& place) {
        return IsIn(CellText(table.ValueAt(row, place.column), place.format));
    });
}

bool RowSearch::IsIn(const std::string& cell) const {
    if (!isPlain_) return platform::ContainsIgnoringCase(cell, text_);
    const auto same = [](char letter, char lower) { return Lower(letter) == lower; };
    return !std::ranges::search(cell, text_, same).empty() || text_.empty();
}

} // namespace core::grid
