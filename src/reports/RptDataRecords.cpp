// The records mode of a [DATA] section: each record as labels and values.

#include <algorithm>
#include <memory>

#include "platform/values/Text.h"
#include "reports/DataTable.h"
#include "reports/Queries.h"
#include "reports/clsRptData.h"

namespace reports {

namespace {

constexpr platform::Twips kLabelWidth = 2880;

/// Returns true for the names of fields whose rows have no label.
bool IsSpacer(std::string_view name) {
    constexpr std::string_view kSpace = "SPACE";
    return platform::EqualIgnoringCase(name.substr(0, kSpace.size()), kSpace);
}

std::string ValueText(const platform::Field& field) {
    return field.IsNull() ? std::string() : CellText(field);
}

} // namespace

void clsRptData::ShowRecords(platform::PrintSurface& page) const {
    platform::Recordset rows;
    if (!OpenQuery(rows, Expand(SQLQuery.empty() ? ComposeQuery({}) : SQLQuery))) {
        PrintNoRecords(page);
        return;
    }
    PrintIn(page, "TableGroupHeader", HeadText);
    const std::int64_t count = rows.RecordCount();
    const std::int64_t shown = MaxRecords >= 1 ? std::min<std::int64_t>(MaxRecords, count) : count;
    for (std::int64_t i = 0; i < shown; ++i, rows.MoveNext()) {
        if (i > 0) {
            page.ApplyStyle("Table");
            page.Text("");
            if (LineBetween) DrawLine(page, "-");
        }
        ShowRecord(page, rows);
        PrintIn(page, "TableGroupTotal", FootText);
    }
}

void clsRptData::ShowRecord(platform::PrintSurface& page, platform::Recordset& row) const {
    std::vector<std::vector<std::string>> lines;
    lines.reserve(row.FieldCount());
    for (std::size_t i = 0; i < row.FieldCount(); ++i) {
        const platform::Field field = row[i];
        lines.push_back({IsSpacer(field.Name()) ? std::string() : field.Name(), ValueText(field)});
    }
    page.ApplyStyle("Table");
    page.StartTable();
    page.AddTableArray(
        "<" + std::to_string(kLabelWidth) + "|<" + std::to_string(page.PrintWidth() - kLabelWidth),
        {}, std::make_unique<platform::HeldRows>(std::move(lines)));
    page.Table().border = platform::TableBorder::None;
    ApplyAttributes(page.Table(), Attributes, ColWrap);
    page.EndTable();
}

} // namespace reports
