#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/PageSetup.h"
#include "reports/ReportSection.h"

namespace reports {

/// A definition read for a run.
struct ReportFile {
    std::string Title = "Vestrel Report";
    std::string SubTitle;
    bool ShowTitle = true;
    bool ShowHeader = true;
    bool ShowFooter = true;
    /// Unset if the file leaves the orientation to the catalogue.
    std::optional<platform::PageOrientation> FileOrientation;
    bool DebugOn = false;
    std::int32_t ScaleX = 0;
    std::int32_t ScaleY = 0;
    std::string LoopQuery;
    int LoopLine = 0; ///< of the loop query, 0 without one
    /// Whether the start or the end date is used anywhere.
    bool UsesDates = false;
    std::vector<std::unique_ptr<ReportSection>> Sections;
};

/// Reads the page set-up and the sections of a definition; unknown keys are ignored. Throws a
/// ReportError for a command that the section's class lacks and for a number that is not one.
ReportFile ReadReport(std::string_view text);

/// Does the same for a file. A file that is missing or can't be read gives a report of defaults
/// without sections. The text of a ReportError begins with the file's name.
ReportFile LoadReportFile(const std::filesystem::path& file);

} // namespace reports
