#include "reports/TableAttributes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/values/Text.h"

namespace reports {

using platform::TableBorder;

namespace {

constexpr auto kBorders = std::to_array<std::pair<std::string_view, TableBorder>>({
    {"NONE", TableBorder::None},
    {"BOTTOM", TableBorder::Bottom},
    {"TOP", TableBorder::Top},
    {"TOPBOTTOM", TableBorder::TopBottom},
    {"BOX", TableBorder::Box},
    {"COLUMNS", TableBorder::Columns},
    {"COLTOPBOTTOM", TableBorder::ColTopBottom},
    {"BELOWHEADER", TableBorder::BelowHeader},
    {"BOXROWS", TableBorder::BoxRows},
    {"BOXCOLUMNS", TableBorder::BoxColumns},
});

/// Calls `set` with each column that the list names.
template <typename Set>
void ForEachColumn(std::string_view list, std::vector<platform::TableColumn>& columns, Set set) {
    while (!list.empty()) {
        const auto piece = list.substr(0, list.find(','));
        list.remove_prefix(std::min(list.size(), piece.size() + 1));
        const std::string_view word = platform::Trim(piece);
        std::size_t number = 0;
        const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
        const bool isNumber = read.ec == std::errc() && read.ptr == word.data() + word.size();
        if (isNumber && number >= 1 && number <= columns.size()) set(columns[number - 1]);
    }
}

} // namespace

TableBorder BorderOfWord(std::string_view word) {
    const std::string wanted = platform::ToUpper(platform::Trim(word));
    const auto found = std::ranges::find(kBorders, wanted, [](const auto& it) { return it.first; });
    return found == kBorders.end() ? TableBorder::All : found->second;
}

void ApplyAttributes(platform::PrintTable& table, const TableAttributes& attributes, bool colWrap) {
    if (table.rowCount == 0 || table.columns.empty()) return;
    for (platform::TableColumn& column : table.columns)
        column.wrap = colWrap ? platform::Wrap::Wrap : platform::Wrap::Ellipsis;
    ForEachColumn(attributes.ColBold, table.columns, [](auto& column) { column.bold = true; });
    ForEachColumn(attributes.AlignCurrency, table.columns,
                  [](auto& column) { column.alignCurrency = true; });
    if (!attributes.Border.empty()) table.border = BorderOfWord(attributes.Border);
}

} // namespace reports
