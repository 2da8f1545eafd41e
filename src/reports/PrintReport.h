#pragma once

#include <cstdint>
#include <functional>

namespace reports {

/// Runs a report, by its number in the catalogue, with its current choices, and shows it.
using ReportViewer = std::function<void(int index)>;

/// Sets the viewer of the process; an empty one removes it.
void SetReportViewer(ReportViewer viewer);
bool HasReportViewer();

/// Runs a report with its current choices. Does nothing without a viewer or such a report.
void RunReport(int index);

/// Runs a report for one record without asking anything.
void PrintReport(std::int32_t selectedId, int index);

} // namespace reports
