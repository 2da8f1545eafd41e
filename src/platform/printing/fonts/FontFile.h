#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

#include "platform/printing/FontMetrics.h"

struct hb_face_t;
struct hb_font_t;

namespace platform {

using GlyphId = std::uint32_t;

/// One TrueType file, mapped into memory. Glyph 0 is the box of a missing character.
class FontFile {
  public:
    /// Throws an Error if the file can't be read or isn't a font.
    explicit FontFile(std::filesystem::path path);
    ~FontFile();
    FontFile(const FontFile&) = delete;
    FontFile& operator=(const FontFile&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::string PostScriptName() const;
    FaceHeights Heights() const;
    /// Returns the box that all glyphs fit in, in thousandths of an em: left, bottom, right, top.
    std::array<int, 4> Bounds() const;

    /// Returns the character's own glyph, 0 if the font lacks it.
    GlyphId Glyph(char32_t code) { return Look(code).glyph; }
    /// Returns the advance width of a character in ems.
    double AdvanceOf(char32_t code) { return static_cast<double>(Look(code).advance); }
    double GlyphAdvance(GlyphId glyph) const;
    /// Returns the advance of an ASCII character in ems; negative if the font lacks it.
    double AsciiAdvance(unsigned char c) const { return ascii_[c]; }

    hb_face_t* HbFace() const { return face_; }
    hb_font_t* HbFont() const { return font_; }

  private:
    struct Entry {
        std::uint16_t glyph = 0;
        float advance = 0;
    };
    using Block = std::array<Entry, 256>;

    Entry Look(char32_t code);
    std::unique_ptr<Block> LoadBlock(char32_t first) const;

    std::filesystem::path path_;
    hb_face_t* face_ = nullptr;
    hb_font_t* font_ = nullptr;
    double unitsPerEm_ = 1000;
    std::array<double, 128> ascii_{};
    std::array<std::unique_ptr<Block>, 0x110000 / 256> blocks_;
};

} // namespace platform
