#include "reports/Export.h"

#include <fmt/core.h>

#include "platform/system/Paths.h"

namespace reports {

namespace {

constexpr std::array<ExportWords, 3> kWords = {{
    {"html", "HyperText Markup Language (*.html)|*.html", "Saving HTML Report File",
     "HTML document saved to "},
    {"pdf", "Portable Document Format (*.pdf)|*.pdf", "Saving PDF Report File",
     "PDF document saved to "},
    {"rtf", "Rich Text File (*.rtf)|*.rtf", "Saving RTF Report File", "RTF document saved to "},
}};

constexpr int kLastNumber = 9999;

} // namespace

const ExportWords& WordsOf(ExportFormat format) {
    return kWords.at(static_cast<std::size_t>(format));
}

std::string ProposeExportFile(std::string_view folder, ExportFormat format) {
    std::string file;
    for (int number = 1; number <= kLastNumber; ++number) {
        file = fmt::format("{}rpt{:04}.{}", folder, number, WordsOf(format).extension);
        if (!platform::FileExists(file)) break;
    }
    return file;
}

} // namespace reports
