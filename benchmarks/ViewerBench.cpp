// A list of a million transactions in the report viewer: how soon its first page is there, how long
// the window ever stands still, and what the whole costs beside the same pages without a window.
#include <QAction>
#include <QApplication>
#include <QPrinter>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>

#include <fmt/core.h>

#include "Measure.h"
#include "WindowBooks.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "platform/printing/PrintSurface.h"
#include "platform/qt/preview/PagePreview.h"
#include "platform/qt/preview/Printers.h"
#include "reports/ReportList.h"
#include "reports/ReportRun.h"
#include "reports/screens/frmReportViewer.h"
#include "shell/GridReport.h"
#include "shell/Views.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;
using Clock = std::chrono::steady_clock;

constexpr int kRows = 1'000'000;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The books, and the list of all their transactions as the scratch report.
void OpenBooks(const support::TemporaryFolder& folder) {
    bench::OpenWindowBooks(folder / "books");
    core::App().ReportPath = (folder / "Reports/").string();
    shell::WriteGridReport(
        shell::BuildViewSql(core::kTransaction, {.days = 0}, shell::IdColumn::Omitted));
    reports::LoadReportList();
}

/// How a run of the viewer felt to its user.
struct Patience {
    double firstPage = 0;
    double longestPause = 0;
    double whole = 0;
    std::size_t pages = 0;
    double search = 0; ///< for a text that isn't there
    double printPause = 0;
    double print = 0; ///< into a file
};

/// Prints everything into a file without asking.
class FilePrinter : public platform::qt::PrinterChooser {
  public:
    explicit FilePrinter(std::string path) : path_(std::move(path)) {}
    std::optional<platform::qt::PrintOrder> Ask(
        QWidget*, const platform::qt::PrintQuestion& question) override {
        return platform::qt::PrintOrder{Usual(), 0, question.pageCount - 1};
    }
    std::unique_ptr<QPrinter> Usual() override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QString::fromStdString(path_));
        return printer;
    }

  private:
    std::string path_;
};

class Window {
  public:
    explicit Window(const support::TemporaryFolder& folder) {
        OpenBooks(folder);
        application_.emplace(argc_, argv_);
        platform::qt::SetPrinterChooser(
            std::make_unique<FilePrinter>((folder / "printed.pdf").string()));
        viewer_ = new reports::screens::frmReportViewer;
    }

    Patience Run() {
        Patience felt;
        const auto start = Clock::now();
        auto last = start;
        core::SetMessagePump([&] {
            felt.longestPause = std::max(felt.longestPause, SecondsSince(last));
            QCoreApplication::processEvents();
            if (felt.firstPage == 0 && viewer_->isVisible()) felt.firstPage = SecondsSince(start);
            last = Clock::now();
        });
        viewer_->RunReport(reports::kScratchReport);
        felt.longestPause = std::max(felt.longestPause, SecondsSince(last));
        felt.whole = SecondsSince(start);
        felt.pages = viewer_->Document().PageCount();
        return felt;
    }

    /// The same with a search and printing into a file afterwards.
    Patience RunSearchAndPrint() {
        Patience felt = Run();
        auto begin = Clock::now();
        auto last = begin;
        auto& view = *viewer_->findChild<platform::qt::PagePreview*>(QStringLiteral("vp"));
        view.Find(QStringLiteral("no such text"), platform::SearchDirection::Forward);
        felt.search = SecondsSince(begin);
        core::SetMessagePump([&] {
            felt.printPause = std::max(felt.printPause, SecondsSince(last));
            QCoreApplication::processEvents();
            last = Clock::now();
        });
        begin = last = Clock::now();
        viewer_->findChild<QAction*>(QStringLiteral("mnuPrint"))->trigger();
        felt.printPause = std::max(felt.printPause, SecondsSince(last));
        felt.print = SecondsSince(begin);
        return felt;
    }

  private:
    int argc_ = 1;
    char name_[6] = "bench";
    char* argv_[2] = {name_, nullptr};
    std::optional<QApplication> application_;
    reports::screens::frmReportViewer* viewer_ = nullptr;
};

double LayWithoutWindow() {
    reports::ReportRun run(*reports::FindReport(reports::kScratchReport));
    platform::FontBook fonts;
    platform::PrintedDocument pages;
    platform::PrintSurface surface(fonts, &pages, nullptr);
    run.Draw(surface);
    return static_cast<double>(pages.PageCount());
}

int Compare() {
    const support::TemporaryFolder folder;
    bench::MakeWindowBooks(folder / "books",
                           {.leases = 100, .mortgages = 10, .transactions = kRows});
    std::optional<Window> window;
    const Cost plain =
        bench::InOwnProcess([&] { OpenBooks(folder); }, [] { return LayWithoutWindow(); });
    const auto open = [&] { window.emplace(folder); };
    const Cost viewed = bench::InOwnProcess(open, [&] {
        const Patience felt = window->Run();
        return felt.longestPause / felt.whole * 1000;
    });
    bench::InOwnProcess(open, [&] {
        const Patience felt = window->RunSearchAndPrint();
        fmt::print(
            "list of {} rows in the viewer: first page after {:.2f} s, longest pause "
            "{:.2f} s, {} pages after {:.1f} s\n",
            kRows, felt.firstPage, felt.longestPause, felt.pages, felt.whole);
        fmt::print("search through all: {:.2f} s; printed in {:.1f} s, longest pause {:.2f} s\n",
                   felt.search, felt.print, felt.printPause);
        std::fflush(stdout);
        return 0.0;
    });
    fmt::print("without a window: {:.0f} pages in {:.1f} s, {:.0f} MB; viewer: {:.0f} MB\n",
               plain.rows, plain.seconds, plain.peakMegabytes, viewed.peakMegabytes);
    bench::Report("viewer, time beside the layout by itself", viewed.seconds / plain.seconds, 2);
    bench::Report("viewer, longest pause of the window per thousand of the run", viewed.rows, 50,
                  "parts");
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Compare);
}
