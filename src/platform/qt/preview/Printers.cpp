#include "platform/qt/preview/Printers.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "platform/printing/ByteSink.h"
#include "platform/printing/pdf/PdfWriter.h"
#include "platform/qt/Text.h"
#include "platform/qt/preview/PagePainter.h"
#include "platform/values/Errors.h"

namespace platform::qt {

namespace {

void SetUpPrinter(QPrinter& printer, const PageSetup& setup) {
    const auto size = setup.paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter;
    const auto orientation = setup.orientation == PageOrientation::Landscape
                                 ? QPageLayout::Landscape
                                 : QPageLayout::Portrait;
    // The pages include their margins.
    printer.setFullPage(true);
    printer.setPageLayout(QPageLayout(QPageSize(size), orientation, QMarginsF()));
}

class SystemPrinters : public PrinterChooser {
  public:
    std::optional<PrintOrder> Ask(QWidget* owner, const PrintQuestion& question) override;
    std::unique_ptr<QPrinter> Usual() override;

  private:
    QString last_; ///< the name of the printer that was chosen last
};

std::optional<PrintOrder> SystemPrinters::Ask(QWidget* owner, const PrintQuestion& question) {
    std::unique_ptr<QPrinter> printer = Usual();
    if (!printer) printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    SetUpPrinter(*printer, question.setup);
    printer->setDocName(question.name);
    QPrintDialog dialog(printer.get(), owner);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, question.pageCount);
    dialog.setFromTo(1, question.pageCount);
    if (question.offered == PagesOffered::Current)
        dialog.setPrintRange(QAbstractPrintDialog::CurrentPage);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;

    last_ = printer->printerName();
    PrintOrder order{.printer = std::move(printer), .first = 0, .last = question.pageCount - 1};
    if (dialog.printRange() == QAbstractPrintDialog::CurrentPage) {
        order.first = question.currentPage;
        order.last = question.currentPage;
    } else if (dialog.printRange() == QAbstractPrintDialog::PageRange && dialog.fromPage() > 0) {
        order.first = dialog.fromPage() - 1;
        order.last = std::max(dialog.toPage(), dialog.fromPage()) - 1;
    }
    return order;
}

std::unique_ptr<QPrinter> SystemPrinters::Usual() {
    QPrinterInfo info = QPrinterInfo::printerInfo(last_);
    if (info.isNull()) info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return nullptr;
    return std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

/// Passes the pages of an order to `draw` while `progress` returns true; returns false if it
/// stopped.
bool ForEachPage(const PrintOrder& order, const PrintedDocument& document,
                 const std::function<bool(int done)>& progress,
                 const std::function<void(PrintedPage)>& draw) {
    const int last = std::min(order.last, static_cast<int>(document.PageCount()) - 1);
    for (int page = order.first; page <= last; ++page) {
        if (!progress(page - order.first)) return false;
        draw(document.Page(static_cast<std::size_t>(page)));
    }
    return true;
}

/// Qt would draw the letters of our fonts as outlines, which can't be searched.
void PrintToFile(const PrintOrder& order, const PrintedDocument& document, const FontBook& fonts,
                 const std::function<bool(int done)>& progress) {
    OutputFile file(FromScreen(order.printer->outputFileName()));
    PdfWriter writer(file, fonts);
    writer.BeginPages(document.Info());
    if (!ForEachPage(order, document, progress,
                     [&](PrintedPage page) { writer.AddPage(std::move(page)); })) {
        return;
    }
    writer.EndPages();
    file.Commit();
}

std::unique_ptr<PrinterChooser>& Held() {
    static std::unique_ptr<PrinterChooser> held;
    return held;
}

} // namespace

PrinterChooser& ThePrinterChooser() {
    if (!Held()) Held() = std::make_unique<SystemPrinters>();
    return *Held();
}

void SetPrinterChooser(std::unique_ptr<PrinterChooser> chooser) {
    Held() = std::move(chooser);
}

void PrintPages(const PrintOrder& order, const PrintedDocument& document, const FontBook& fonts,
                const std::function<bool(int done)>& progress) {
    QPrinter& printer = *order.printer;
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
        return PrintToFile(order, document, fonts, progress);
    }
    SetUpPrinter(printer, document.Info().setup);
    printer.setDocName(ToScreen(document.Info().name));
    const std::string name = FromScreen(printer.printerName());
    QPainter painter;
    if (!painter.begin(&printer)) throw Error("The printer " + name + " takes no pages.");
    PagePainter pages(fonts);
    const double scale = printer.resolution() / double(kTwipsPerInch);
    bool isFirst = true;
    const bool isWhole = ForEachPage(order, document, progress, [&](const PrintedPage& page) {
        if (!isFirst && !printer.newPage()) {
            throw Error("The printer " + name + " takes no more pages.");
        }
        isFirst = false;
        pages.Paint(painter, page, scale);
    });
    if (!isWhole) printer.abort();
    if (!painter.end() && isWhole) throw Error("The document could not be printed.");
}

} // namespace platform::qt
