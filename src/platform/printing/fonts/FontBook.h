#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/printing/FontMetrics.h"
#include "platform/printing/fonts/FontFile.h"

namespace platform {

/// The number of a font file within a book.
using FontIndex = std::size_t;

struct PlacedGlyph {
    GlyphId glyph = 0;
    double advance = 0; ///< of the pen, in ems
    double dx = 0;      ///< where the glyph is drawn from the pen, in ems
    double dy = 0;      ///< upwards
};

/// Glyphs of one font that are drawn one after the other from left to right.
struct GlyphRun {
    FontIndex font = 0;
    bool slanted = false;
    double x = 0; ///< where the run begins, in ems from the text's left end
    std::vector<PlacedGlyph> glyphs;
    std::string_view text; ///< the part of the text that it shows, in reading order
    /// True if each glyph is a character's own, in the order of the text.
    bool isPlain = false;
};

/// The fonts of printed pages: measures texts for the layout, and provides their glyphs for
/// drawing. A character that no font has is drawn as a box.
class FontBook : public FontMetrics {
  public:
    FontBook();
    ~FontBook() override;

    /// Throws an Error that names the package if the fonts aren't installed.
    FaceId Face(std::string_view family, Weight weight, Slant slant) override;
    FaceHeights Heights(FaceId face) const override;
    double Width(FaceId face, std::string_view text) const override;

    const FontFile& File(FontIndex font) const { return *fonts_[font]; }
    std::size_t FontCount() const { return fonts_.size(); }

    /// Returns the glyphs of a clean text without line ends.
    std::vector<GlyphRun> Shape(FaceId face, std::string_view text) const;

    /// Returns the glyphs with the font's own widths, which is quicker, for texts that ShapePlain
    /// accepts.
    std::vector<GlyphRun> Glyphs(FaceId face, std::string_view text) const;

    /// The fast way for texts of one font without marks and joins: adds the glyphs to `glyphs`.
    /// Returns false, with `glyphs` unchanged, for any other text.
    bool ShapePlain(FaceId face, std::string_view text, std::vector<GlyphId>& glyphs) const;
    FontIndex FontOf(FaceId face) const { return faces_[face].font; }
    bool IsSlanted(FaceId face) const { return faces_[face].slanted; }

  private:
    struct FaceEntry {
        FontIndex font;
        bool slanted;
        Weight weight;
        FaceHeights heights;
    };

    FontIndex Load(std::string_view file) const;
    const std::vector<FontIndex>& Fallbacks(Weight weight) const;

    // Files are opened when a text first needs them, which may be while it is measured.
    mutable std::vector<std::unique_ptr<FontFile>> fonts_;
    mutable std::map<std::string, FontIndex, std::less<>> fontNames_;
    mutable std::map<Weight, std::vector<FontIndex>> fallbacks_;
    std::vector<FaceEntry> faces_;
    std::map<std::pair<FontIndex, bool>, FaceId> faceNumbers_;
};

} // namespace platform
