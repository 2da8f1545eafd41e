#include "platform/printing/fonts/FontBook.h"

#include "platform/printing/Unicode.h"
#include "platform/printing/fonts/FontFamilies.h"
#include "platform/printing/fonts/ShapeText.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

/// Returns true for characters that a font draws one by one, whatever is beside them.
bool StandsByItself(char32_t code) {
    if (code < 0x300) return code >= 0x20 && code != 0xAD;
    if (code < 0x590) return code >= 0x370 && (code < 0x483 || code > 0x489);
    if (code < 0x1E00) return false;
    if (code < 0x2000) return true;
    return (code >= 0x2010 && code <= 0x2027) || (code >= 0x2030 && code <= 0x205E) ||
           (code >= 0x20A0 && code <= 0x20CF) || (code >= 0x2100 && code <= 0x25FF);
}

} // namespace

FontBook::FontBook() = default;
FontBook::~FontBook() = default;

FontIndex FontBook::Load(std::string_view file) const {
    if (const auto known = fontNames_.find(file); known != fontNames_.end()) return known->second;
    std::filesystem::path path = FindFontFile(file);
    if (path.empty()) {
        throw Error("The font file " + std::string(file) +
                    " isn't installed. The packages fonts-liberation and fonts-wine have the fonts "
                    "of reports.");
    }
    fonts_.push_back(std::make_unique<FontFile>(std::move(path)));
    fontNames_.emplace(file, fonts_.size() - 1);
    return fonts_.size() - 1;
}

FaceId FontBook::Face(std::string_view family, Weight weight, Slant slant) {
    FaceSource source = SourceOf(family, weight, slant);
    if (FindFontFile(source.file).empty()) source = SourceOf("Arial", weight, slant);
    const FontIndex font = Load(source.file);
    const auto next = static_cast<FaceId>(faces_.size());
    const auto [entry, isNew] = faceNumbers_.try_emplace({font, source.slanted}, next);
    if (isNew) faces_.push_back({font, source.slanted, weight, fonts_[font]->Heights()});
    return entry->second;
}

FaceHeights FontBook::Heights(FaceId face) const {
    return faces_[face].heights;
}

double FontBook::Width(FaceId face, std::string_view text) const {
    FontFile& font = *fonts_[faces_[face].font];
    double width = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto c = static_cast<unsigned char>(text[at]);
        if (c < 0x80) {
            width += font.AsciiAdvance(c);
            ++at;
            if (font.AsciiAdvance(c) >= 0) continue;
        } else {
            const char32_t code = NextCodePoint(text, at);
            width += font.AdvanceOf(code);
            if (StandsByItself(code) && font.Glyph(code)) continue;
        }
        width = 0;
        for (const GlyphRun& run : Shape(face, text)) {
            for (const PlacedGlyph& glyph : run.glyphs)
                width += glyph.advance;
        }
        return width;
    }
    return width;
}

bool FontBook::ShapePlain(FaceId face, std::string_view text, std::vector<GlyphId>& glyphs) const {
    FontFile& font = *fonts_[faces_[face].font];
    const std::size_t before = glyphs.size();
    for (std::size_t at = 0; at < text.size();) {
        const char32_t code = NextCodePoint(text, at);
        const GlyphId glyph = font.Glyph(code);
        if (!glyph || !StandsByItself(code)) {
            glyphs.resize(before);
            return false;
        }
        glyphs.push_back(glyph);
    }
    return true;
}

const std::vector<FontIndex>& FontBook::Fallbacks(Weight weight) const {
    const auto [entry, isNew] = fallbacks_.try_emplace(weight);
    if (isNew) {
        for (const std::string_view file : FallbackFiles(weight)) {
            if (!FindFontFile(file).empty()) entry->second.push_back(Load(file));
        }
    }
    return entry->second;
}

std::vector<GlyphRun> FontBook::Glyphs(FaceId face, std::string_view text) const {
    std::vector<GlyphId> glyphs;
    if (!ShapePlain(face, text, glyphs)) return Shape(face, text);
    const FaceEntry& entry = faces_[face];
    GlyphRun run;
    run.font = entry.font;
    run.slanted = entry.slanted;
    run.text = text;
    run.isPlain = true;
    for (const GlyphId glyph : glyphs) {
        run.glyphs.push_back({.glyph = glyph, .advance = fonts_[entry.font]->GlyphAdvance(glyph)});
    }
    return {std::move(run)};
}

std::vector<GlyphRun> FontBook::Shape(FaceId face, std::string_view text) const {
    const FaceEntry& entry = faces_[face];
    std::vector<FontChoice> fonts{{entry.font, fonts_[entry.font].get()}};
    for (const FontIndex index : Fallbacks(entry.weight)) {
        fonts.push_back({index, fonts_[index].get()});
    }
    std::vector<GlyphRun> runs = ShapeText(fonts, text);
    for (GlyphRun& run : runs)
        run.slanted = entry.slanted;
    return runs;
}

} // namespace platform
