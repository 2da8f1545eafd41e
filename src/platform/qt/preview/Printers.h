#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "platform/printing/PrintedDocument.h"
#include "platform/printing/fonts/FontBook.h"

class QPrinter;
class QWidget;

namespace platform::qt {

/// Which pages the print dialog offers first.
enum class PagesOffered : std::uint8_t { All, Current };

struct PrintQuestion {
    QString name; ///< of the document
    PageSetup setup;
    int pageCount = 0;
    int currentPage = 0; ///< from 0
    PagesOffered offered = PagesOffered::All;
};

/// A printer and a range of pages, counted from 0, including both ends.
struct PrintOrder {
    std::unique_ptr<QPrinter> printer;
    int first = 0;
    int last = 0;
};

/// Lets the user choose a printer and the range of pages.
class PrinterChooser {
  public:
    virtual ~PrinterChooser() = default;
    /// Asks the user; returns nothing if they cancel.
    virtual std::optional<PrintOrder> Ask(QWidget* owner, const PrintQuestion& question) = 0;
    /// Returns the printer chosen last, or else the default printer, for printing without asking;
    /// null if there is none.
    virtual std::unique_ptr<QPrinter> Usual() = 0;
};

/// Returns the chooser of this process: the system's print dialog unless SetPrinterChooser sets
/// another; null restores it.
PrinterChooser& ThePrinterChooser();
void SetPrinterChooser(std::unique_ptr<PrinterChooser> chooser);

/// Prints a range of pages. `progress` is called before each page with the number of pages done,
/// and stops the printing by returning false. Throws an Error if the printer takes no pages.
void PrintPages(const PrintOrder& order, const PrintedDocument& document, const FontBook& fonts,
                const std::function<bool(int done)>& progress);

} // namespace platform::qt
