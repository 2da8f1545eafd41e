#include "platform/printing/fonts/ShapeText.h"

#include <fribidi.h>
#include <hb.h>

#include <algorithm>
#include <array>
#include <string>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

struct Character {
    char32_t code;
    std::size_t begin; ///< in the text
    std::size_t font = 0;
    FriBidiLevel level = 0;
    hb_script_t script = HB_SCRIPT_COMMON;
};

bool IsInvisible(char32_t code) {
    return (code >= 0x200B && code <= 0x200F) || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2060 && code <= 0x206F) || (code >= 0xFE00 && code <= 0xFE0F) ||
           code == 0xFEFF || code == 0xAD || (code >= 0xE0000 && code <= 0xE0FFF);
}

std::vector<Character> Characters(std::string_view text) {
    std::vector<Character> characters;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = at;
        characters.push_back({.code = NextCodePoint(text, at), .begin = begin});
    }
    return characters;
}

/// Marks stay with the font of the letter that they belong to, if it has them.
void ChooseFonts(std::vector<Character>& characters, std::span<const FontChoice> fonts) {
    std::size_t last = 0;
    for (Character& character : characters) {
        const char32_t code = character.code;
        character.font = last;
        if (IsInvisible(code)) continue;
        if (IsCombining(code) && fonts[last].file->Glyph(code)) continue;
        const auto found = std::ranges::find_if(
            fonts, [code](const FontChoice& font) { return font.file->Glyph(code) != 0; });
        last = found == fonts.end() ? 0 : static_cast<std::size_t>(found - fonts.begin());
        character.font = last;
    }
}

void ChooseScripts(std::vector<Character>& characters) {
    hb_unicode_funcs_t* unicode = hb_unicode_funcs_get_default();
    hb_script_t last = HB_SCRIPT_COMMON;
    for (Character& character : characters) {
        const hb_script_t script = hb_unicode_script(unicode, character.code);
        if (script != HB_SCRIPT_COMMON && script != HB_SCRIPT_INHERITED) last = script;
        character.script = last;
    }
}

void ChooseLevels(std::vector<Character>& characters) {
    std::vector<FriBidiChar> codes;
    codes.reserve(characters.size());
    for (const Character& character : characters)
        codes.push_back(character.code);
    const auto count = static_cast<FriBidiStrIndex>(codes.size());
    std::vector<FriBidiCharType> types(codes.size());
    std::vector<FriBidiBracketType> brackets(codes.size());
    std::vector<FriBidiLevel> levels(codes.size());
    fribidi_get_bidi_types(codes.data(), count, types.data());
    fribidi_get_bracket_types(codes.data(), count, types.data(), brackets.data());
    FriBidiParType base = FRIBIDI_PAR_LTR;
    const auto highest = fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), count,
                                                             &base, levels.data());
    if (highest == 0) return; // out of memory: left to right
    for (std::size_t i = 0; i < levels.size(); ++i)
        characters[i].level = levels[i];
}

/// Characters of one font, script and direction.
struct Stretch {
    std::size_t begin;
    std::size_t end;
    FriBidiLevel level;
};

std::vector<Stretch> Stretches(const std::vector<Character>& characters) {
    std::vector<Stretch> stretches;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const Character& here = characters[i];
        const Character& before = characters[i == 0 ? 0 : i - 1];
        if (i == 0 || here.font != before.font || here.level != before.level ||
            here.script != before.script) {
            stretches.push_back({i, i, here.level});
        }
        stretches.back().end = i + 1;
    }
    return stretches;
}

/// Puts stretches in the order they are drawn: from the highest level down, each sequence of at
/// least that level is reversed.
void OrderForDrawing(std::vector<Stretch>& stretches) {
    FriBidiLevel highest = 0;
    for (const Stretch& stretch : stretches)
        highest = std::max(highest, stretch.level);
    for (FriBidiLevel level = highest; level > 0; --level) {
        for (auto first = stretches.begin(); first != stretches.end();) {
            const auto isBelow = [level](const Stretch& s) { return s.level < level; };
            first = std::find_if_not(first, stretches.end(), isBelow);
            const auto last = std::find_if(first, stretches.end(), isBelow);
            std::reverse(first, last);
            first = last;
        }
    }
}

GlyphRun ShapeStretch(const Stretch& stretch, const std::vector<Character>& characters,
                      const FontChoice& font, std::string_view text, hb_buffer_t* buffer) {
    // Neither kerning nor ligatures: the layout measures word by word.
    static const std::array<hb_feature_t, 3> kFeatures = {
        {{HB_TAG('k', 'e', 'r', 'n'), 0, 0, HB_FEATURE_GLOBAL_END},
         {HB_TAG('l', 'i', 'g', 'a'), 0, 0, HB_FEATURE_GLOBAL_END},
         {HB_TAG('c', 'l', 'i', 'g'), 0, 0, HB_FEATURE_GLOBAL_END}}};
    hb_buffer_clear_contents(buffer);
    for (std::size_t i = stretch.begin; i < stretch.end; ++i) {
        hb_buffer_add(buffer, characters[i].code, static_cast<unsigned>(i));
    }
    hb_buffer_set_content_type(buffer, HB_BUFFER_CONTENT_TYPE_UNICODE);
    hb_buffer_set_script(buffer, characters[stretch.begin].script);
    hb_buffer_set_direction(buffer, stretch.level % 2 ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_language(buffer, hb_language_from_string("en", -1));
    hb_shape(font.file->HbFont(), buffer, kFeatures.data(),
             static_cast<unsigned>(kFeatures.size()));

    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(buffer, &count);
    const double em = hb_face_get_upem(font.file->HbFace());
    GlyphRun run;
    run.font = font.index;
    run.isPlain = count == stretch.end - stretch.begin;
    for (unsigned i = 0; i < count; ++i) {
        run.isPlain = run.isPlain && infos[i].codepoint != 0 && places[i].x_offset == 0 &&
                      places[i].y_offset == 0 && infos[i].cluster == stretch.begin + i &&
                      font.file->Glyph(characters[stretch.begin + i].code) == infos[i].codepoint;
        run.glyphs.push_back({.glyph = infos[i].codepoint,
                              .advance = places[i].x_advance / em,
                              .dx = places[i].x_offset / em,
                              .dy = places[i].y_offset / em});
    }
    const std::size_t begin = characters[stretch.begin].begin;
    const std::size_t end =
        stretch.end < characters.size() ? characters[stretch.end].begin : text.size();
    run.text = text.substr(begin, end - begin);
    return run;
}

} // namespace

std::vector<GlyphRun> ShapeText(std::span<const FontChoice> fonts, std::string_view text) {
    std::vector<Character> characters = Characters(text);
    ChooseFonts(characters, fonts);
    ChooseScripts(characters);
    ChooseLevels(characters);
    std::vector<Stretch> stretches = Stretches(characters);
    OrderForDrawing(stretches);

    hb_buffer_t* buffer = hb_buffer_create();
    std::vector<GlyphRun> runs;
    double x = 0;
    for (const Stretch& stretch : stretches) {
        const FontChoice& font = fonts[characters[stretch.begin].font];
        runs.push_back(ShapeStretch(stretch, characters, font, text, buffer));
        runs.back().x = x;
        for (const PlacedGlyph& glyph : runs.back().glyphs)
            x += glyph.advance;
    }
    hb_buffer_destroy(buffer);
    return runs;
}

} // namespace platform
