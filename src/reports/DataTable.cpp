#include "reports/DataTable.h"

#include <algorithm>
#include <cmath>

#include "platform/values/Conversions.h"
#include "platform/values/Format.h"

namespace reports {

using platform::FieldType;

namespace {

enum class Side { Left, Right };

struct ColumnWeight {
    int weight;
    Side side;
};

constexpr int kLongText = 60;

ColumnWeight WeightOf(FieldType type, int textSize) {
    switch (type) {
        case FieldType::Long:
            return {8, Side::Right};
        case FieldType::Double:
        case FieldType::Currency:
            return {18, Side::Right};
        case FieldType::Date:
            return {18, Side::Left};
        case FieldType::Boolean:
            return {6, Side::Left};
        case FieldType::Text:
            return {std::min(textSize + 4, kLongText), Side::Left};
        case FieldType::Memo:
            return {kLongText, Side::Left};
        case FieldType::Integer:
            break;
    }
    return {20, Side::Left};
}

constexpr platform::PrintColor kHeaderColor = 0xC0C0C0;
constexpr double kHeaderHeight = 1.3; // of a line

} // namespace

DataColumns ColumnsOf(platform::Recordset& rows, std::span<const int> textSizes,
                      platform::Twips printWidth) {
    std::vector<ColumnWeight> weights;
    double sum = 0;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
        const int size = i < textSizes.size() ? textSizes[i] : kLongText;
        weights.push_back(WeightOf(rows[i].Type(), size));
        sum += weights.back().weight;
    }

    DataColumns columns;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
        const auto [weight, side] = weights[i];
        const std::int32_t width = platform::RoundToInt32(printWidth / sum * weight);
        if (i > 0) columns.format += '|';
        columns.format += (side == Side::Right ? ">" : "<") + std::to_string(width);
        columns.captions.push_back(rows[i].Name());
    }
    return columns;
}

std::string CellText(const platform::Field& field) {
    switch (field.Type()) {
        case FieldType::Currency:
            return platform::Format(field.Value(), platform::kMoneyFormat);
        case FieldType::Boolean:
            return field.IsNull() ? std::string() : platform::Format(field.Value(), "Yes/No");
        case FieldType::Integer:
        case FieldType::Long:
        case FieldType::Double:
        case FieldType::Date:
        case FieldType::Text:
        case FieldType::Memo:
            break;
    }
    return field.IsNull() ? std::string() : field.AsText();
}

QueryRows::QueryRows(platform::Recordset& rows) : rows_(&rows), cells_(rows.FieldCount()) {
    rows_->MoveFirst();
}

std::size_t QueryRows::Count() const {
    return static_cast<std::size_t>(rows_->RecordCount());
}

const std::vector<std::string>* QueryRows::Next() {
    if (rows_->Eof()) return nullptr;
    for (std::size_t i = 0; i < cells_.size(); ++i)
        cells_[i] = CellText((*rows_)[i]);
    rows_->MoveNext();
    return &cells_;
}

void StyleHeader(platform::PrintSurface& page) {
    platform::TableHeader& header = page.Table().header;
    header.background = kHeaderColor;
    header.bold = true;
    header.height =
        static_cast<platform::Twips>(std::lround(kHeaderHeight * page.TextHeight("Test")));
    header.vertical = platform::VerticalAlign::Middle;
}

void PrintIn(platform::PrintSurface& page, std::string_view style, std::string_view text) {
    if (text.empty()) return;
    page.ApplyStyle(style);
    page.Text(text);
}

void PrintNoRecords(platform::PrintSurface& page) {
    PrintIn(page, "TableGroupHeader", "No records found.");
    page.ApplyStyle("Default");
}

} // namespace reports
