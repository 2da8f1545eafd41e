#include "reports/WriteReport.h"

#include <array>
#include <memory>
#include <utility>

#include "platform/printing/ByteSink.h"
#include "platform/printing/HtmlWriter.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/RtfWriter.h"
#include "platform/printing/TextWriter.h"
#include "platform/printing/fonts/FontBook.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "platform/values/Text.h"

namespace reports {

namespace {

constexpr auto kExtensions = std::to_array<std::pair<std::string_view, FileFormat>>({
    {".pdf", FileFormat::Pdf},
    {".html", FileFormat::Html},
    {".rtf", FileFormat::Rtf},
    {".txt", FileFormat::Text},
});

/// A finished file has the report's title; the document's name, from the catalogue, is for the
/// printer's queue.
class TitledPdf : public platform::PdfWriter {
  public:
    TitledPdf(platform::ByteSink& sink, const platform::FontBook& fonts, std::string title)
        : PdfWriter(sink, fonts), title_(std::move(title)) {}

    void BeginPages(const platform::DocumentInfo& info) override {
        platform::DocumentInfo titled = info;
        titled.name = title_;
        PdfWriter::BeginPages(titled);
    }

  private:
    std::string title_;
};

void DrawPdf(ReportRun& run, platform::ByteSink& out) {
    platform::FontBook fonts;
    TitledPdf pages(out, fonts, run.Title());
    platform::PrintSurface surface(fonts, &pages, nullptr);
    run.Draw(surface);
}

void DrawFlow(ReportRun& run, platform::FlowSink& flow) {
    // Without pages only the height of a header row is measured.
    platform::FixedMetrics metrics;
    platform::PrintSurface surface(metrics, nullptr, &flow);
    run.Draw(surface);
}

template <typename Writer>
void DrawFlowTo(ReportRun& run, platform::ByteSink& out) {
    Writer writer(out);
    DrawFlow(run, writer);
}

} // namespace

std::optional<FileFormat> FormatOfFile(std::string_view file) {
    const std::string extension =
        platform::ToLower(std::filesystem::path(file).extension().string());
    for (const auto& [known, format] : kExtensions) {
        if (known == extension) return format;
    }
    return std::nullopt;
}

void WriteReport(ReportRun& run, FileFormat format, const std::filesystem::path& file) {
    platform::OutputFile out(file);
    switch (format) {
        case FileFormat::Pdf:
            DrawPdf(run, out);
            break;
        case FileFormat::Html:
            DrawFlowTo<platform::HtmlWriter>(run, out);
            break;
        case FileFormat::Rtf:
            DrawFlowTo<platform::RtfWriter>(run, out);
            break;
        case FileFormat::Text:
            DrawFlowTo<platform::TextWriter>(run, out);
            break;
    }
    out.Commit();
}

} // namespace reports
