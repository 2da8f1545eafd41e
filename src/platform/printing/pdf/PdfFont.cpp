#include "platform/printing/pdf/PdfFont.h"

#include <fmt/core.h>
#include <hb-subset.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/values/Errors.h"

namespace platform {

bool PdfFont::Use(GlyphId glyph, std::string_view text) {
    std::string& known = used_[glyph];
    if (known.empty()) known = text;
    return known == text;
}

/// Returns the font file with only the glyphs that were used, which keep their numbers.
std::string PdfFont::Subset() const {
    hb_subset_input_t* input = hb_subset_input_create_or_fail();
    if (!input) throw Error("There is no memory to embed a font.");
    hb_subset_input_set_flags(input, HB_SUBSET_FLAGS_RETAIN_GIDS | HB_SUBSET_FLAGS_NO_HINTING |
                                         HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
    for (const auto& [glyph, text] : used_) {
        hb_set_add(hb_subset_input_glyph_set(input), glyph);
    }
    hb_set_t* dropped = hb_subset_input_set(input, HB_SUBSET_SETS_DROP_TABLE_TAG);
    for (const char* tag : {"GSUB", "GPOS", "GDEF", "kern", "name", "post", "cmap", "OS/2"}) {
        hb_set_add(dropped, hb_tag_from_string(tag, -1));
    }
    hb_face_t* face = hb_subset_or_fail(file_.HbFace(), input);
    hb_subset_input_destroy(input);
    if (!face) throw Error("The font " + file_.Path().string() + " can't be embedded.");
    hb_blob_t* blob = hb_face_reference_blob(face);
    unsigned length = 0;
    const char* data = hb_blob_get_data(blob, &length);
    std::string bytes(data, length);
    hb_blob_destroy(blob);
    hb_face_destroy(face);
    return bytes;
}

/// Returns the widths of the glyphs used, in thousandths of an em; neighbours share brackets.
std::string PdfFont::Widths() const {
    std::string out;
    GlyphId last = 0;
    for (const auto& [glyph, text] : used_) {
        if (out.empty() || glyph != last + 1)
            out += fmt::format("{}{}[", out.empty() ? "" : "]", glyph);
        out += fmt::format("{:g} ", file_.GlyphAdvance(glyph) * 1000);
        last = glyph;
    }
    return out.empty() ? out : out + "]";
}

std::string PdfFont::ToUnicode() const {
    std::vector<std::string> lines;
    for (const auto& [glyph, text] : used_) {
        if (!text.empty()) lines.push_back(fmt::format("<{:04X}><{}>\n", glyph, Utf16Hex(text)));
    }
    std::string map =
        "/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n"
        "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
        "/CMapName/Adobe-Identity-UCS def\n/CMapType 2 def\n"
        "1 begincodespacerange\n<0000><FFFF>\nendcodespacerange\n";
    constexpr std::size_t kMost = 100; // of one list
    for (std::size_t first = 0; first < lines.size(); first += kMost) {
        const std::size_t end = std::min(first + kMost, lines.size());
        map += fmt::format("{} beginbfchar\n", end - first);
        for (std::size_t i = first; i < end; ++i)
            map += lines[i];
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend\n";
}

void PdfFont::Write(PdfFile& pdf) const {
    const PdfObject descendant = pdf.Reserve();
    const PdfObject descriptor = pdf.Reserve();
    const PdfObject program = pdf.Reserve();
    const PdfObject unicode = pdf.Reserve();
    // Six letters before the name mark a subset of the font.
    const std::string name = "VESTRL+" + file_.PostScriptName();
    const FaceHeights heights = file_.Heights();
    const auto bounds = file_.Bounds();

    pdf.Write(object_, fmt::format("<</Type/Font/Subtype/Type0/BaseFont/{}/Encoding/Identity-H"
                                   "/DescendantFonts[{} 0 R]/ToUnicode {} 0 R>>",
                                   name, descendant, unicode));
    pdf.Write(descendant,
              fmt::format("<</Type/Font/Subtype/CIDFontType2/BaseFont/{}"
                          "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>"
                          "/FontDescriptor {} 0 R/CIDToGIDMap/Identity/DW 1000/W[{}]>>",
                          name, descriptor, Widths()));
    pdf.Write(descriptor,
              fmt::format("<</Type/FontDescriptor/FontName/{}/Flags 4/FontBBox[{} {} {} {}]"
                          "/ItalicAngle 0/Ascent {:.0f}/Descent {:.0f}/CapHeight 716/StemV 80"
                          "/FontFile2 {} 0 R>>",
                          name, bounds[0], bounds[1], bounds[2], bounds[3], heights.ascent * 1000,
                          -heights.descent * 1000, program));
    const std::string bytes = Subset();
    pdf.WriteStream(program, bytes, fmt::format("/Length1 {}", bytes.size()));
    pdf.WriteStream(unicode, ToUnicode());
}

} // namespace platform
