#pragma once

#include <cstdint>
#include <string_view>

#include "reports/ReportDef.h"

namespace reports {

/// The scratch report's number in the catalogue.
inline constexpr int kScratchReport = 1;

/// Rebuilds the catalogue from the definition files of the reports folder: the scratch report, then
/// the reports and the receipts, each in the order that the file system gives them. Folders and
/// files that can't be read are skipped.
void LoadReportList();

/// Returns the number of reports, which are numbered from 1. Once loaded, the catalogue has at
/// least the scratch report.
int ReportCount();
/// Returns the report of a number; null if there is none.
ReportDef* FindReport(int index);
/// Returns the number of the first report of this description, or else of this file name, ignoring
/// case; 0 if there is none.
int FindReportNamed(std::string_view name);

} // namespace reports
