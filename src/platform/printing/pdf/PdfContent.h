#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/PrintedPage.h"
#include "platform/printing/fonts/FontBook.h"
#include "platform/printing/pdf/PdfFont.h"

namespace platform {

/// The drawing operators of pages, and the fonts that they use. Positions are written in twips from
/// the lower left corner.
class PdfContent {
  public:
    PdfContent(const FontBook& book, PdfFile& pdf) : book_(book), pdf_(pdf) {}

    /// Returns the operators of a page, valid until the next call.
    std::string_view Draw(const PrintedPage& page);
    /// Returns the fonts used so far by their index in the book.
    const std::map<FontIndex, PdfFont>& Fonts() const { return fonts_; }

  private:
    void Text(const PrintedPage& page, const PageItem& item);
    void PlainText(const PageItem& item, std::string_view text);
    void Runs(const PageItem& item, std::string_view text);
    void Run(const PageItem& item, const GlyphRun& run, double em);
    bool IsKnown(FontIndex font, std::string_view text);
    void Underline(const PageItem& item);
    void Line(const PageItem& item);
    void Box(const PageItem& item);

    void BeginText();
    void EndText();
    void MoveText(Twips x, Twips y);
    void SetFont(FontIndex font, float size);
    void SetFill(PrintColor color);
    void SetPen(const PageItem& item);
    void Number(std::int64_t number);
    void Glyph(GlyphId glyph);
    PdfFont& FontOf(FontIndex index);

    const FontBook& book_;
    PdfFile& pdf_;
    std::map<FontIndex, PdfFont> fonts_;
    std::vector<std::vector<bool>> known_; ///< by font and character: the glyph has its text
    std::string out_;
    std::vector<GlyphId> glyphs_;

    // The state that the page's operators have set so far.
    Twips pageHeight_ = 0;
    bool inText_ = false;
    Twips textX_ = 0;
    Twips textY_ = 0;
    FontIndex font_ = 0;
    float size_ = 0;
    std::int64_t fill_ = 0;
    std::int64_t pen_ = 0;
    int penWidth_ = 0;
};

} // namespace platform
