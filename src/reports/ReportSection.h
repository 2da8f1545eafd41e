#pragma once

#include <cstdint>
#include <string>

#include "platform/printing/PrintSurface.h"
#include "platform/values/Date.h"
#include "reports/ReportDef.h"

namespace reports {

/// Whether a section comes before, inside or after the loop of its report.
enum class LoopPhase : std::int16_t { Before = 0, Inside = 1, After = 2 };

/// One [TEXT] or [DATA] section of a report. It lives for one run of the report and may be shown
/// several times in it, once for each row of the loop.
class ReportSection {
  public:
    ReportSection() = default;
    virtual ~ReportSection() = default;
    ReportSection(const ReportSection&) = delete;
    ReportSection& operator=(const ReportSection&) = delete;

    /// Draws the section at the current position. Throws a ReportError for a fault in the
    /// definition that stops the section.
    virtual void ShowData(platform::PrintSurface& page) = 0;

    int Line = 0; ///< of the section's header in the file
    LoopPhase Sequence = LoopPhase::Before;
    Detail DetailLevel = Detail::Always;

    // Set by the caller that runs the report.
    bool EnableDebug = false;
    std::int32_t SelectedId = 0;
    std::string SelectedDescription;
    platform::Date StartDate;
    platform::Date EndDate;
    std::string ShowYear;
    std::string LoopId;
    bool ColWrap = true;
    std::int32_t ScaleX = 0;
    std::int32_t ScaleY = 0;
};

} // namespace reports
