#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/CoreFixture.h"
#include "platform/values/Currency.h"
#include "platform/values/Value.h"
#include "reports/ReportDef.h"
#include "reports/ReportsFixture.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// A row of a table by the names of its fields.
using Row = std::map<std::string, platform::Value>;

/// The shipped report files on a sample portfolio of 06/15/2026, which all tests share and none
/// changes. The figures that reports are held against are summed here row by row.
class Shipped : public CoreProcess {
  public:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

  protected:
    Shipped();

    /// The shipped files, sorted.
    static std::vector<std::filesystem::path> Files();
    /// Runs a shipped report ("Rent Roll.rpt") with the choices of `report`.
    FlowLines Run(const std::string& file);

    /// All rows of a table.
    static std::vector<Row> Rows(const std::string& table);
    static platform::Currency Money(const Row& row, const char* field);
    static std::int32_t Id(const Row& row, const char* field);
    static double Number(const Row& row, const char* field);
    static std::string Text(const Row& row, const char* field);
    /// The day of a field, unset if it holds none.
    static platform::Date Day(const Row& row, const char* field);

    /// The amounts in a column (0 the first) of all rows whose first cell is `label`, in order.
    static std::vector<platform::Currency> Amounts(const FlowLines& flow, std::string_view label,
                                                   std::size_t column = 1);
    /// The last of them; a failed test and 0 if there is none.
    static platform::Currency Amount(const FlowLines& flow, std::string_view label,
                                     std::size_t column = 1);
    /// The cells of all tables whose header begins with this caption, a row each.
    static std::vector<std::vector<std::string>> TableRows(const FlowLines& flow,
                                                           std::string_view firstCaption);
    /// The sum of a column of those tables.
    static platform::Currency ColumnSum(const FlowLines& flow, std::string_view firstCaption,
                                        std::size_t column);
    /// The amount behind a total line "p Total rent = ".
    static platform::Currency Total(const FlowLines& flow, std::string_view line);

    reports::ReportDef report;

  private:
    static std::unique_ptr<support::TemporaryFolder> books_;
};

} // namespace tests
