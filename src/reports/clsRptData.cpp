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
    try {
        if (!HeadLine.empty()) {
            DrawLine(page, HeadLine);
            page.ApplyStyle("TinyText");
            page.Text("");
        }
        switch (Mode) {
            case DataMode::None:
                break;
            case DataMode::Table:
                ShowTable(page);
                break;
            case DataMode::Records:
                ShowRecords(page);
                break;
            case DataMode::Amortization:
                ShowAmortization(page);
                break;
            case DataMode::Depreciation:
            case DataMode::DeprTable:
                ShowDepreciation(page);
                break;
        }
        if (!FootLine.empty()) {
            page.ApplyStyle("TinyText");
            page.Text("");
            DrawLine(page, FootLine);
        }
    } catch (const platform::ConversionError& fault) {
        throw ReportError(Line, fault.what());
    } catch (const platform::OverflowError& fault) {
        throw ReportError(Line, fault.what());
    }
}

} // namespace reports
