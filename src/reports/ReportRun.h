#pragma once

#include <filesystem>
#include <string>

#include "platform/printing/PrintSurface.h"
#include "reports/ReportDef.h"
#include "reports/ReportFile.h"

namespace reports {

/// One run of a report, without a screen: reads the definition, works out the dates and the record
/// from the choices, and draws the document.
///
///     ReportRun run(*FindReport(index));
///     run.Draw(surface);
///
/// The constructor throws a ReportError if the definition has a fault that ends the run, Draw if
/// such a fault shows while drawing. Draw also passes on what the surface's sinks throw, which is
/// how a run is cancelled.
class ReportRun {
  public:
    /// Reads the report's file in the reports folder. An orientation that the file gives is stored
    /// in `report`, which must outlive the run.
    explicit ReportRun(ReportDef& report);
    /// Reads a file elsewhere instead.
    ReportRun(ReportDef& report, std::filesystem::path file);

    const ReportDef& Definition() const { return *report_; }
    const ReportFile& File() const { return file_; }
    const std::string& Title() const { return file_.Title; }
    /// Returns true if the file fixes the page's orientation.
    bool FixesOrientation() const { return file_.FileOrientation.has_value(); }
    const std::string& SelectedDescription() const { return selectedDescription_; }
    platform::Date StartDate() const { return start_; }
    platform::Date EndDate() const { return end_; }
    /// Returns the machine's paper and margins in the report's orientation.
    platform::PageSetup Setup() const;

    /// Draws the whole document, from StartDoc to EndDoc. The run can be drawn once.
    void Draw(platform::PrintSurface& page);

  private:
    void ResolveDates();
    std::string ExpandRunTags(std::string text) const;
    void Start(platform::PrintSurface& page) const;
    void DrawTitle(platform::PrintSurface& page) const;
    void GiveSettings();
    void RunSections(platform::PrintSurface& page);
    void RunPhase(platform::PrintSurface& page, LoopPhase phase);
    void RunLoop(platform::PrintSurface& page, const std::string& query);
    bool IsShown(const ReportSection& section) const;

    ReportDef* report_;
    std::filesystem::path path_;
    ReportFile file_;
    std::string selectedDescription_;
    platform::Date start_;
    platform::Date end_;
};

/// Sets the choices for printing one record without asking: full detail, the current year, the
/// last twelve months.
void ChooseForRecord(ReportDef& report, std::int32_t selectedId);

} // namespace reports
