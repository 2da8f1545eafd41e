#pragma once

#include <cstdint>
#include <string_view>

#include "reports/ReportDef.h"

namespace reports {

/// The scratch report's place in the catalogue.
inline constexpr int kScratchReport = 1;

/// Rebuilds the catalogue from the definition files of the reports folder: the scratch report, then
/// the reports and the receipts, each in the order that the file system gives them. Folders and
/// files that can't be read are skipped.
void LoadReportList();

/// Reports are numbered from 1 to ReportCount. Once loaded, the catalogue has at least the scratch
/// report.
int ReportCount();
/// The report of a number; null for a number that isn't one.
ReportDef* FindReport(int index);
/// The first report of this description, or else of this file name, without regard to case; 0 if
/// there is none.
int FindReportNamed(std::string_view name);

} // namespace reports
