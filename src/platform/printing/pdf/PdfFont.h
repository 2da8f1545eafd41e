#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/printing/fonts/FontFile.h"
#include "platform/printing/pdf/PdfFile.h"

namespace platform {

/// One font of a PDF file: remembers which glyphs were used and for which characters, and embeds
/// those at the end.
class PdfFont {
  public:
    PdfFont(const FontFile& file, PdfObject object) : file_(file), object_(object) {}

    PdfObject Object() const { return object_; }

    /// Records that a glyph was drawn for a text, which a reader then copies or finds for it.
    /// Returns false if the glyph already has another text.
    bool Use(GlyphId glyph, std::string_view text);
    /// Records that a glyph was drawn whose text is given beside it.
    void UseWithoutText(GlyphId glyph) { used_.try_emplace(glyph); }

    /// Writes the font's objects.
    void Write(PdfFile& pdf) const;

  private:
    std::string Subset() const;
    std::string Widths() const;
    std::string ToUnicode() const;

    const FontFile& file_;
    PdfObject object_;
    std::map<GlyphId, std::string> used_;
};

} // namespace platform
