// Long tables to PDF and HTML against plain loops that write the same, and a letter of one page.
#include <fmt/core.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "Measure.h"
#include "PlainPages.h"
#include "platform/printing/HtmlWriter.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;

/// The rows that the plain loops write, made as they are asked for.
class BenchRows : public platform::TableRows {
  public:
    explicit BenchRows(std::size_t count) : count_(count), cells_(8) {}
    std::size_t Count() const override { return count_; }
    const std::vector<std::string>* Next() override {
        if (next_ == count_) return nullptr;
        bench::FillRow(next_++, row_);
        for (std::size_t i = 0; i < cells_.size(); ++i)
            cells_[i] = row_.cells[i];
        return &cells_;
    }

  private:
    std::size_t count_;
    std::size_t next_ = 0;
    bench::PlainRow row_{};
    std::vector<std::string> cells_;
};

void DrawLedger(platform::PrintSurface& surface, std::size_t rows) {
    surface.SetDocName("Ledger");
    surface.SetFrame({.header = "Elm & Oak LLC||02/29/2024", .footer = "Ledger||Page %d"});
    surface.SetUp({.orientation = platform::PageOrientation::Landscape});
    surface.StartDoc();
    surface.Style().fontSize = 8;
    surface.Style().spaceBefore = 20;
    surface.Style().spaceAfter = 20;
    surface.StartTable();
    surface.AddTableArray("<1620|<1620|<1620|<1620|<1620|<1620|>1620|>1620",
                          {"No", "Date", "Building", "Unit", "Tenant", "Memo", "Amount", "Balance"},
                          std::make_unique<BenchRows>(rows));
    surface.Table().header.bold = true;
    surface.Table().border = platform::TableBorder::BelowHeader;
    surface.EndTable();
    surface.EndDoc();
}

double PrintPdf(const std::filesystem::path& path, std::size_t rows) {
    platform::OutputFile file(path);
    platform::FontBook fonts;
    platform::PdfWriter writer(file, fonts);
    platform::PrintSurface surface(fonts, &writer, nullptr);
    DrawLedger(surface, rows);
    file.Commit();
    return static_cast<double>(rows);
}

double PrintHtml(const std::filesystem::path& path, std::size_t rows) {
    platform::OutputFile file(path);
    platform::FixedMetrics metrics;
    platform::HtmlWriter writer(file);
    platform::PrintSurface surface(metrics, nullptr, &writer);
    DrawLedger(surface, rows);
    file.Commit();
    return static_cast<double>(rows);
}

template <class Work>
std::function<Cost()> OnNewFolder(Work work) {
    return [work] {
        const support::TemporaryFolder folder;
        return bench::InOwnProcess([] {}, [&] { return work(folder / "report"); });
    };
}

void PrintCost(const std::string& what, const Cost& cost) {
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} rows/s {:>8.1f} MB\n", what, cost.seconds,
               cost.rows / cost.seconds, cost.peakMegabytes);
}

void PrintRatio(const std::string& what, const Cost& ours, const Cost& plain, double limit) {
    PrintCost(what, ours);
    PrintCost("  the same by a plain loop", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, limit);
}

int Run() {
    constexpr int kRounds = 7;
    constexpr std::size_t kFew = 10'000;
    constexpr std::size_t kMany = 100'000;
    const auto pdf = [](std::size_t rows) {
        return OnNewFolder([rows](const auto& path) { return PrintPdf(path, rows); });
    };
    const auto html = [](std::size_t rows) {
        return OnNewFolder([rows](const auto& path) { return PrintHtml(path, rows); });
    };
    const auto plainly = [](auto write, std::size_t rows) {
        return OnNewFolder([write, rows](const auto& path) {
            write(path.c_str(), rows, bench::FillRow);
            return static_cast<double>(rows);
        });
    };
    const auto [fewPdf, manyPdf, fewPlainPdf, manyPlainPdf] =
        bench::BestInTurn<4>(kRounds, {pdf(kFew), pdf(kMany), plainly(bench::WritePlainPdf, kFew),
                                       plainly(bench::WritePlainPdf, kMany)});
    const auto [fewHtml, manyHtml, fewPlainHtml, manyPlainHtml] = bench::BestInTurn<4>(
        kRounds, {html(kFew), html(kMany), plainly(bench::WritePlainHtml, kFew),
                  plainly(bench::WritePlainHtml, kMany)});
    PrintRatio("10,000 rows to PDF", fewPdf, fewPlainPdf, 5);
    PrintRatio("100,000 rows to PDF", manyPdf, manyPlainPdf, 5);
    bench::Report("  peak memory", manyPdf.peakMegabytes, 64, "MB");
    bench::Report("  growth from 10,000 rows", manyPdf.seconds / fewPdf.seconds, 11);
    PrintRatio("10,000 rows to HTML", fewHtml, fewPlainHtml, 2);
    PrintRatio("100,000 rows to HTML", manyHtml, manyPlainHtml, 2);
    bench::Report("  growth from 10,000 rows", manyHtml.seconds / fewHtml.seconds, 11);
    const auto [page] = bench::BestInTurn<1>(kRounds, {pdf(30)});
    bench::Report("one page to PDF", page.seconds * 1000, 20, "ms");
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
