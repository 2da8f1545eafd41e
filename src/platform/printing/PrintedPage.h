#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/FontMetrics.h"
#include "platform/printing/Lengths.h"

namespace platform {

/// A text, line or box of a page, in the order they are drawn.
struct PageItem {
    enum class Kind : std::uint8_t { Text, Line, Box };

    Kind kind = Kind::Text;
    bool underline = false; ///< of a text
    bool filled = false;    ///< of a box
    FaceId face = 0;
    std::int16_t angle = 0; ///< tenths of a degree, counter-clockwise about (x1, y1)
    std::uint16_t pen = 0;  ///< width in twips of a line or a box's edge; 0 for no edge
    float size = 0;         ///< of a text, in points
    PrintColor color = 0;   ///< of the text or the pen
    PrintColor fill = 0;    ///< inside a box
    Twips x1 = 0;           ///< a text's left end
    Twips y1 = 0;           ///< a text's baseline
    Twips x2 = 0;           ///< a text's right end
    Twips y2 = 0;
    std::uint32_t textBegin = 0;
    std::uint32_t textLength = 0;
};

/// One finished page. Positions are in twips from the page's upper left corner.
class PrintedPage {
  public:
    PrintedPage() = default;
    PrintedPage(Twips width, Twips height) : width_(width), height_(height) {}

    Twips Width() const { return width_; }
    Twips Height() const { return height_; }
    const std::vector<PageItem>& Items() const { return items_; }
    /// Returns the text of a text item, UTF-8 in reading order.
    std::string_view TextOf(const PageItem& item) const;
    bool IsEmpty() const { return items_.empty(); }

    void AddText(PageItem item, std::string_view text);
    void AddShape(PageItem item) { items_.push_back(item); }

  private:
    Twips width_ = 0;
    Twips height_ = 0;
    std::vector<PageItem> items_;
    std::string text_;
};

/// Returns the page as lines of text for golden files: "text 1440,1500 Arial ..." in drawing order.
std::string DescribePage(const PrintedPage& page);

} // namespace platform
