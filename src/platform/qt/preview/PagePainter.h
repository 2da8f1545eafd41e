#pragma once

#include <QRawFont>
#include <map>
#include <utility>

#include "platform/printing/PrintedPage.h"
#include "platform/printing/fonts/FontBook.h"

class QPainter;

namespace platform::qt {

/// Draws finished pages with Qt, on screens and printers alike: at any scale the same glyphs are at
/// the same places of the page.
class PagePainter {
  public:
    /// Draws the pages with the faces of `fonts`.
    explicit PagePainter(const FontBook& fonts) : fonts_(fonts) {}

    /// Draws a page with its upper left corner at the painter's origin; a twip is `scale` of the
    /// painter's units. The paper itself isn't drawn.
    void Paint(QPainter& painter, const PrintedPage& page, double scale);

  private:
    void Text(QPainter& painter, const PageItem& item, std::string_view text, double scale);
    void Run(QPainter& painter, const GlyphRun& run, double em);
    const QRawFont& FontAt(FontIndex font, double pixels);

    const FontBook& fonts_;
    std::map<std::pair<FontIndex, int>, QRawFont> sized_;
};

} // namespace platform::qt
