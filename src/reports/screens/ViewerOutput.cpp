#include <QAction>
#include <QPrinter>
#include <filesystem>
#include <vector>

#include "core/Configuration.h"
#include "core/forms/ErrorRoll.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/printing/ByteSink.h"
#include "platform/printing/HtmlWriter.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/RtfWriter.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "platform/values/Text.h"
#include "reports/ReportList.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/ReportSinks.h"
#include "reports/screens/frmReportViewer.h"
#include "ui_frmReportViewer.h"

namespace reports::screens {

namespace {

/// Converts "Rich Text File (*.rtf)|*.rtf" for the file dialogs.
platform::FileFilter FilterOf(std::string_view words) {
    const auto bar = words.find('|');
    const auto bracket = words.find(" (");
    return {.name = std::string(words.substr(0, bracket)),
            .patterns = std::string(words.substr(bar + 1))};
}

/// Returns whether the name ends as files of the format do. Anything else after a dot, as in "Roll
/// 11.22.2026", belongs to the name, and no program would recognise the file by it.
bool HasEnding(const std::filesystem::path& file, std::string_view extension) {
    const std::string ending = file.extension().string();
    return platform::EqualIgnoringCase(ending, "." + std::string(extension)) ||
           (extension == "html" && platform::EqualIgnoringCase(ending, ".htm"));
}

/// Returns the file to write; a name without the format's extension gets it.
std::optional<std::string> AskFile(const ExportWords& words, ExportFormat format) {
    const auto chosen =
        platform::TheChoosers().SaveFile({.title = std::string(words.title),
                                          .start = ProposeExportFile(LastSaveDir(), format),
                                          .filters = std::vector{FilterOf(words.filter)}});
    if (!chosen || HasEnding(*chosen, words.extension)) return chosen;
    std::string named = *chosen + "." + std::string(words.extension);
    if (platform::FileExists(named) &&
        !platform::TheDialogs().AskYesNo(std::string(words.title),
                                         named + " already exists. Do you want to replace it?",
                                         platform::Icon::Exclamation)) {
        return std::nullopt;
    }
    return named;
}

template <typename Writer>
void DrawFlow(ReportRun& run, platform::ByteSink& out, Progress progress) {
    Writer writer(out);
    WatchedFlow flow(writer, std::move(progress));
    platform::FixedMetrics metrics;
    platform::PrintSurface surface(metrics, nullptr, &flow);
    run.Draw(surface);
}

/// Writes the pages as they are shown to a PDF file.
void WritePages(const platform::PrintedDocument& document, platform::DocumentInfo info,
                platform::PageSink& sink) {
    sink.BeginPages(info);
    for (std::size_t page = 0; page < document.PageCount(); ++page)
        sink.AddPage(document.Page(page));
    sink.EndPages();
}

} // namespace

void frmReportViewer::Export(ExportFormat format) {
    if (work_ != Work::None || !document_.IsComplete()) return;
    const ExportWords& words = WordsOf(format);
    const auto path = AskFile(words, format);
    if (!path) return;
    bool isWritten = false;
    BeginWork(Work::Export);
    core::forms::Guarded([&] {
        try {
            WriteExport(format, *path);
            isWritten = true;
        } catch (const Cancelled&) {
            // An older file of that name is unchanged.
        }
    });
    EndWork();
    if (isWritten) {
        TellExported(format, *path);
        SaveLastSaveDir(platform::PathOf(*path));
    }
    // The user may have asked for another report in the meantime.
    if (nextRun_) RunReport(*nextRun_);
    if (closesAfter_) close();
}

void frmReportViewer::WriteExport(ExportFormat format, const std::string& path) {
    const auto progress = [this](std::size_t done) { return GoOn(done); };
    platform::OutputFile file(path);
    if (format == ExportFormat::Pdf) {
        platform::PdfWriter writer(file, *fonts_);
        WatchedPages pages(writer, progress);
        platform::DocumentInfo info = document_.Info();
        info.name = title_;
        info.subject = title_;
        info.author = core::Config().CompanyName;
        WritePages(document_, std::move(info), pages);
    } else if (ReportDef* const report = FindReport(reportIndex_)) {
        // These are written while the document is drawn, so the report runs again.
        ReportRun run(*report);
        if (format == ExportFormat::Html) {
            DrawFlow<platform::HtmlWriter>(run, file, progress);
        } else {
            DrawFlow<platform::RtfWriter>(run, file, progress);
        }
    }
    file.Commit();
}

void frmReportViewer::TellExported(ExportFormat format, const std::string& path) {
    const bool opens = Action("mnuOpenExport")->isChecked();
    if (opens && platform::TheDesktop().OpenDocument(path)) return;
    platform::TheDialogs().ShowMessage("Success", std::string(WordsOf(format).done) + path,
                                       platform::Icon::Information);
}

void frmReportViewer::Print() {
    AskAndPrint(platform::qt::PagesOffered::All);
}

void frmReportViewer::AskAndPrint(platform::qt::PagesOffered offered) {
    if (work_ != Work::None || ui_->vp->PageCount() < 1) return;
    core::forms::Guarded([this, offered] {
        const platform::qt::PrintQuestion question{
            .name = platform::qt::ToScreen(document_.Info().name),
            .setup = document_.Info().setup,
            .pageCount = ui_->vp->PageCount(),
            .currentPage = ui_->vp->CurrentPage(),
            .offered = offered};
        if (const auto order = platform::qt::ThePrinterChooser().Ask(this, question)) {
            PrintOn(*order);
        }
    });
}

void frmReportViewer::PrintPage() {
    if (work_ != Work::None || ui_->vp->PageCount() < 1) return;
    core::forms::Guarded([this] {
        platform::qt::PrintOrder order{.printer = platform::qt::ThePrinterChooser().Usual(),
                                       .first = ui_->vp->CurrentPage(),
                                       .last = ui_->vp->CurrentPage()};
        if (order.printer) {
            PrintOn(order);
        } else {
            // There is no printer to print on without asking.
            AskAndPrint(platform::qt::PagesOffered::Current);
        }
    });
}

void frmReportViewer::PrintOn(const platform::qt::PrintOrder& order) {
    BeginWork(Work::Print);
    core::forms::Guarded([&] {
        platform::qt::PrintPages(order, document_, *fonts_,
                                 [this](int done) { return GoOn(static_cast<std::size_t>(done)); });
    });
    EndWork();
    if (nextRun_) RunReport(*nextRun_);
    if (closesAfter_) close();
}

} // namespace reports::screens
