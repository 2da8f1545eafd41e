#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/printing/FontMetrics.h"
#include "platform/printing/PageSink.h"
#include "reports/ReportRun.h"

namespace reports {

enum class FileFormat : std::uint8_t { Pdf, Html, Rtf, Text };

/// Returns the format for a file's extension, in any case; nothing for an unknown extension.
std::optional<FileFormat> FormatOfFile(std::string_view file);

/// Draws a run into a file, which gets its name only when it is complete: after a failure an older
/// file of that name is unchanged. Needs no display. Throws what ReportRun::Draw throws, and an
/// Error if the file can't be written or, for PDF, the fonts are missing.
void WriteReport(ReportRun& run, FileFormat format, const std::filesystem::path& file);

} // namespace reports
