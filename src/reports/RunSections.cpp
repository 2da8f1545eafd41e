#include "core/Preferences.h"
#include "reports/Queries.h"
#include "reports/ReportError.h"
#include "reports/ReportRun.h"
#include "reports/Tags.h"

namespace reports {

using platform::PrintSurface;

bool ReportRun::IsShown(const ReportSection& section) const {
    return section.DetailLevel == Detail::Always || section.DetailLevel == report_->DetailLevel;
}

void ReportRun::RunSections(PrintSurface& page) {
    GiveSettings();
    if (file_.LoopQuery.empty()) {
        for (const auto& section : file_.Sections) {
            if (IsShown(*section)) section->ShowData(page);
        }
        return;
    }
    const std::string query = ExpandRunTags(file_.LoopQuery);
    RunPhase(page, LoopPhase::Before);
    RunLoop(page, query);
    RunPhase(page, LoopPhase::After);
}

void ReportRun::GiveSettings() {
    for (const auto& section : file_.Sections) {
        section->EnableDebug = file_.DebugOn;
        section->SelectedId = report_->SelectedId;
        section->SelectedDescription = selectedDescription_;
        section->StartDate = start_;
        section->EndDate = end_;
        section->ShowYear = report_->SelectedYear;
        section->ScaleX = file_.ScaleX;
        section->ScaleY = file_.ScaleY;
        section->ColWrap = core::Preferences().ColWrap;
    }
}

void ReportRun::RunPhase(PrintSurface& page, LoopPhase phase) {
    for (const auto& section : file_.Sections) {
        if (section->Sequence == phase && IsShown(*section)) section->ShowData(page);
    }
}

void ReportRun::RunLoop(PrintSurface& page, const std::string& query) {
    platform::Recordset rows;
    if (!OpenQuery(rows, query)) return;
    while (!rows.Eof()) {
        std::string id;
        AtLine(file_.LoopLine, [&] { id = TextOf(rows[0].Value()); });
        for (const auto& section : file_.Sections) {
            if (section->Sequence != LoopPhase::Inside || !IsShown(*section)) continue;
            section->LoopId = id;
            section->ShowData(page);
        }
        AtLine(file_.LoopLine, [&] { rows.MoveNext(); });
    }
}

} // namespace reports
