#pragma once

#include <string>
#include <string_view>

#include "platform/qt/preview/Printers.h"
#include "reports/ReportDef.h"
#include "reports/screens/frmReportViewer.h"
#include "support/screens/Screens.h"

namespace tests {

/// Books with a few records, a reports folder, and a viewer.
class ViewerTest : public support::ScreenTest {
  protected:
    ViewerTest();
    ~ViewerTest() override;

    /// Makes a report and returns its number in the catalogue. A new one may change the numbers of
    /// those before.
    int MakeReport(std::string_view name, std::string_view definition);
    /// The viewer of the program, which is open.
    reports::screens::frmReportViewer& Viewer() const;
    /// Runs a report in it.
    reports::screens::frmReportViewer& View(int index);

    static void Trigger(const QWidget& viewer, const char* action);
    /// All that stands on a page, a line each.
    static std::string TextOf(const reports::screens::frmReportViewer& viewer,
                              std::size_t page = 0);

    /// A definition of a table of so many rows.
    static std::string LongTable(int rows);
};

/// Keeps what was asked of the printer, and prints into a file.
class FilePrinter : public platform::qt::PrinterChooser {
  public:
    explicit FilePrinter(std::string path) : path_(std::move(path)) {}
    std::optional<platform::qt::PrintOrder> Ask(
        QWidget* owner, const platform::qt::PrintQuestion& question) override;
    std::unique_ptr<QPrinter> Usual() override;

  private:
    std::unique_ptr<QPrinter> MakePrinter() const;

    std::string path_;
};

} // namespace tests
