#include "reports/screens/ViewerFixture.h"

#include <QPrinter>

#include "core/MessagePump.h"
#include "reports/ReportList.h"
#include "support/screens/Screens.h"

namespace tests {

using reports::screens::frmReportViewer;

ViewerTest::ViewerTest() {
    std::filesystem::create_directory(core::App().ReportPath);
    // Margins in inches, and letter paper.
    setenv("LC_ALL", "C.UTF-8", 1);
}

ViewerTest::~ViewerTest() {
    core::SetMessagePump({});
    platform::qt::SetPrinterChooser(nullptr);
}

int ViewerTest::MakeReport(std::string_view name, std::string_view definition) {
    MakeFile("Reports/" + std::string(name), definition);
    reports::LoadReportList();
    return reports::FindReportNamed(name);
}

frmReportViewer& ViewerTest::Viewer() const {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const viewer = qobject_cast<frmReportViewer*>(window)) return *viewer;
    }
    throw std::runtime_error("no viewer is open");
}

frmReportViewer& ViewerTest::View(int index) {
    reports::screens::ViewReport(index);
    support::SettleEvents();
    return Viewer();
}

void ViewerTest::Trigger(const QWidget& viewer, const char* action) {
    support::Find<QAction>(viewer, action).trigger();
}

std::string ViewerTest::TextOf(const frmReportViewer& viewer, std::size_t page) {
    std::string text;
    const platform::PrintedPage shown = viewer.Document().Page(page);
    for (const platform::PageItem& item : shown.Items()) {
        if (item.kind == platform::PageItem::Kind::Text)
            text += std::string(shown.TextOf(item)) + "\n";
    }
    return text;
}

std::string ViewerTest::LongTable(int rows) {
    std::string text = "[TEXT]\nTABLEFORMAT=<2880\n";
    text += "TABLE=Row 0\n";
    for (int row = 1; row < rows; ++row)
        text += "APPEND=;Row " + std::to_string(row) + "\n";
    return text;
}

std::optional<platform::qt::PrintOrder> FilePrinter::Ask(
    QWidget*, const platform::qt::PrintQuestion& question) {
    if (question.offered == platform::qt::PagesOffered::Current) {
        return platform::qt::PrintOrder{
            .printer = MakePrinter(), .first = question.currentPage, .last = question.currentPage};
    }
    return platform::qt::PrintOrder{
        .printer = MakePrinter(), .first = 0, .last = question.pageCount - 1};
}

std::unique_ptr<QPrinter> FilePrinter::Usual() {
    return MakePrinter();
}

std::unique_ptr<QPrinter> FilePrinter::MakePrinter() const {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(platform::qt::ToScreen(path_));
    return printer;
}

} // namespace tests
