#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"
#include "reports/ReportSection.h"
#include "reports/TableAttributes.h"

namespace reports {

enum class DataMode : std::int16_t {
    None = 0, ///< only the section's head and foot lines
    Table = 1,
    Records = 2,
    Amortization = 3,
    Depreciation = 4,
    DeprTable = 5,
};

/// A [DATA] section: the rows of a query as a table with groups and totals or record by record, a
/// mortgage's schedule, or a building's depreciation.
class clsRptData : public ReportSection {
  public:
    void SetMode_Table() { Mode = DataMode::Table; }
    void SetMode_Records() { Mode = DataMode::Records; }
    void SetMode_Amortization() { Mode = DataMode::Amortization; }
    void SetMode_Depreciation() { Mode = DataMode::Depreciation; }
    void SetMode_DeprTable() { Mode = DataMode::DeprTable; }

    /// Queries that fail count as having no rows. Throws a ReportError for a mortgage or building
    /// whose schedule can't be calculated.
    void ShowData(platform::PrintSurface& page) override;

    DataMode Mode = DataMode::None;
    /// A complete query; if it is set, the parts below aren't used.
    std::string SQLQuery;
    std::string SQLFields;
    std::string SQLTables;
    std::string SQLFilter;
    std::string SQLOrder;
    std::string TotalField; ///< an expression to sum
    std::string TotalDesc;
    std::string GroupField; ///< its distinct values make the groups
    std::string GroupDesc;
    bool LineBetween = false;
    bool ShowGrandTotal = false;
    std::int16_t MaxRecords = 0; ///< of the records mode; no limit below 1
    std::string HeadLine;        ///< caption of a separator line; "-" is a plain line
    std::string FootLine;
    std::string HeadText;
    std::string FootText;
    TableAttributes Attributes;

  private:
    class TableRun;

    std::string Expand(std::string text) const;
    /// Returns the composed query with `groupTest` before its order; tags are not expanded.
    std::string ComposeQuery(std::string_view groupTest) const;

    void DrawLine(platform::PrintSurface& page, std::string_view caption) const;
    void ShowMode(platform::PrintSurface& page) const;
    void ShowTable(platform::PrintSurface& page) const;
    void ShowRecords(platform::PrintSurface& page) const;
    void ShowRecord(platform::PrintSurface& page, platform::Recordset& row) const;
    void ShowAmortization(platform::PrintSurface& page) const;
    void ShowDepreciation(platform::PrintSurface& page) const;
};

} // namespace reports
