#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace reports {

enum class ExportFormat : std::uint8_t { Html, Pdf, Rtf };

/// The texts of an export's dialog and closing message.
struct ExportWords {
    std::string_view extension;
    std::string_view filter;
    std::string_view title;
    std::string_view done; ///< the file's path follows
};

const ExportWords& WordsOf(ExportFormat format);

/// Returns the first free name of "rpt0001.html", "rpt0002.html", ... in `folder` (empty, or with
/// its last separator); the last of 9999 names if none is free.
std::string ProposeExportFile(std::string_view folder, ExportFormat format);

} // namespace reports
