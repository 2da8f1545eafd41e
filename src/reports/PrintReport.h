#pragma once

#include <cstdint>
#include <functional>

namespace reports {

/// Shows the run of a report, by its number in the catalogue, with the choices that it has.
using ReportViewer = std::function<void(int index)>;

/// Gives the process its viewer; an empty one takes it away.
void SetReportViewer(ReportViewer viewer);
bool HasReportViewer();

/// Runs a report with its present choices. Nothing happens without a viewer or such a report.
void RunReport(int index);

/// Runs a report for one record without asking anything.
void PrintReport(std::int32_t selectedId, int index);

} // namespace reports
