#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/CoreFixture.h"
#include "platform/values/Currency.h"
#include "reports/ReportDef.h"
#include "reports/ReportsFixture.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// The shipped report files on a sample portfolio of 06/15/2026, which all tests share and none
/// changes. The figures that reports are held against come from plain selects on one table.
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

    /// The only value of a select, 0 for a null.
    static platform::Currency Sum(const std::string& sql);

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
    /// The amount in a total line "p Total rent = ".
    static platform::Currency Total(const FlowLines& flow, std::string_view line);
    /// The amount at a place of a report: "Label" or "Label@2" as Amount, "Caption#2" as ColumnSum,
    /// "Caption#" the number of rows, "p Total rent = " as Total, and sums and differences of
    /// these.
    static platform::Currency Figure(const FlowLines& flow, std::string_view place);

    reports::ReportDef report;

  private:
    static std::unique_ptr<support::TemporaryFolder> books_;
};

} // namespace tests
