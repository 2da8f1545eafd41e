#include "platform/printing/fonts/FontFile.h"

#include <hb-ot.h>
#include <hb.h>

#include <utility>

#include "platform/values/Errors.h"

namespace platform {

FontFile::FontFile(std::filesystem::path path) : path_(std::move(path)) {
    hb_blob_t* blob = hb_blob_create_from_file_or_fail(path_.c_str());
    if (!blob) throw Error("Can't read the font " + path_.string() + ".");
    face_ = hb_face_create(blob, 0);
    hb_blob_destroy(blob);
    if (hb_face_get_glyph_count(face_) == 0) {
        hb_face_destroy(face_);
        throw Error(path_.string() + " is not a font.");
    }
    font_ = hb_font_create(face_);
    unitsPerEm_ = hb_face_get_upem(face_);
    for (unsigned char c = 0; c < 128; ++c) {
        ascii_[c] = c >= 0x20 && Glyph(c) ? AdvanceOf(c) : -1;
    }
}

FontFile::~FontFile() {
    hb_font_destroy(font_);
    hb_face_destroy(face_);
}

std::string FontFile::PostScriptName() const {
    std::array<char, 128> name{};
    auto size = static_cast<unsigned>(name.size());
    hb_ot_name_get_utf8(face_, HB_OT_NAME_ID_POSTSCRIPT_NAME, HB_LANGUAGE_INVALID, &size,
                        name.data());
    std::string out;
    for (const char c : std::string_view(name.data())) {
        const bool plain =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
        if (plain) out += c;
    }
    return out.empty() ? "Font" : out;
}

FaceHeights FontFile::Heights() const {
    hb_font_extents_t extents{};
    hb_font_get_h_extents(font_, &extents);
    return {.ascent = extents.ascender / unitsPerEm_,
            .descent = -extents.descender / unitsPerEm_,
            .leading = extents.line_gap / unitsPerEm_};
}

std::array<int, 4> FontFile::Bounds() const {
    constexpr unsigned kFirst = 36; // where the head table has the four
    hb_blob_t* head = hb_face_reference_table(face_, HB_TAG('h', 'e', 'a', 'd'));
    unsigned length = 0;
    const char* data = hb_blob_get_data(head, &length);
    std::array<int, 4> bounds{0, -250, 1000, 1000};
    if (length >= kFirst + 8) {
        for (unsigned i = 0; i < 4; ++i) {
            const auto high = static_cast<unsigned char>(data[kFirst + 2 * i]);
            const auto low = static_cast<unsigned char>(data[kFirst + 2 * i + 1]);
            const auto units = static_cast<std::int16_t>(high << 8U | low);
            bounds[i] = static_cast<int>(units * 1000 / unitsPerEm_);
        }
    }
    hb_blob_destroy(head);
    return bounds;
}

double FontFile::GlyphAdvance(GlyphId glyph) const {
    return hb_font_get_glyph_h_advance(font_, glyph) / unitsPerEm_;
}

FontFile::Entry FontFile::Look(char32_t code) {
    if (code > 0x10FFFF) return {};
    auto& block = blocks_[code / 256];
    if (!block) block = LoadBlock(code & ~char32_t{255});
    return (*block)[code % 256];
}

std::unique_ptr<FontFile::Block> FontFile::LoadBlock(char32_t first) const {
    auto block = std::make_unique<Block>();
    for (unsigned i = 0; i < block->size(); ++i) {
        hb_codepoint_t glyph = 0;
        if (!hb_font_get_nominal_glyph(font_, first + i, &glyph)) continue;
        (*block)[i] = {static_cast<std::uint16_t>(glyph), static_cast<float>(GlyphAdvance(glyph))};
    }
    return block;
}

} // namespace platform
