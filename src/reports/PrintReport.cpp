#include "reports/PrintReport.h"

#include <utility>

#include "reports/ReportList.h"
#include "reports/ReportRun.h"

namespace reports {

namespace {

ReportViewer& Viewer() {
    static ReportViewer viewer;
    return viewer;
}

} // namespace

void SetReportViewer(ReportViewer viewer) {
    Viewer() = std::move(viewer);
}

bool HasReportViewer() {
    return static_cast<bool>(Viewer());
}

void RunReport(int index) {
    if (Viewer() && FindReport(index) != nullptr) Viewer()(index);
}

void PrintReport(std::int32_t selectedId, int index) {
    ReportDef* const report = FindReport(index);
    if (report == nullptr) return;
    ChooseForRecord(*report, selectedId);
    RunReport(index);
}

} // namespace reports
