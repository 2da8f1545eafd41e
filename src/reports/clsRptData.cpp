#include "reports/clsRptData.h"

#include "reports/ReportError.h"
#include "reports/Tags.h"

namespace reports {

std::string clsRptData::Expand(std::string text) const {
    if (text.find('%') == std::string::npos) return text;
    ReplaceTag(text, "%LOOPID%", LoopId);
    ReplaceTag(text, "%SELECTEDID%", std::to_string(SelectedId));
    ReplaceTag(text, "%SELECTEDYEAR%", ShowYear);
    ReplaceTag(text, "%SELECTEDDESCRIPTION%", SelectedDescription);
    ReplaceTag(text, "%STARTDATE%", StartDate.ToText());
    ReplaceTag(text, "%ENDDATE%", EndDate.ToText());
    ExpandSystemTags(text);
    return text;
}

std::string clsRptData::ComposeQuery(std::string_view groupTest) const {
    std::string sql = "SELECT " + SQLFields + " FROM " + SQLTables;
    if (!SQLFilter.empty()) sql += " WHERE " + SQLFilter;
    if (!groupTest.empty()) sql.append(SQLFilter.empty() ? " WHERE" : " AND").append(groupTest);
    if (!SQLOrder.empty()) sql += " ORDER BY " + SQLOrder;
    return sql;
}

void clsRptData::DrawLine(platform::PrintSurface& page, std::string_view caption) const {
    page.ApplyStyle("Default");
    page.SepLine(Expand(std::string(caption)));
}

void clsRptData::ShowData(platform::PrintSurface& page) {
    AtLine(Line, [&] {
        if (!HeadLine.empty()) {
            DrawLine(page, HeadLine);
            page.ApplyStyle("TinyText");
            page.Text("");
        }
        ShowMode(page);
        if (!FootLine.empty()) {
            page.ApplyStyle("TinyText");
            page.Text("");
            DrawLine(page, FootLine);
        }
    });
}

void clsRptData::ShowMode(platform::PrintSurface& page) const {
    switch (Mode) {
        case DataMode::None:
            return;
        case DataMode::Table:
            return ShowTable(page);
        case DataMode::Records:
            return ShowRecords(page);
        case DataMode::Amortization:
            return ShowAmortization(page);
        case DataMode::Depreciation:
        case DataMode::DeprTable:
            return ShowDepreciation(page);
    }
}

} // namespace reports
