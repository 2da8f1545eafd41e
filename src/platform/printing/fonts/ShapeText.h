#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "platform/printing/fonts/FontBook.h"

namespace platform {

struct FontChoice {
    FontIndex index;
    FontFile* file;
};

/// Returns the glyphs of a text of any scripts, from left to right as they are drawn: each
/// character from the first font that has it, scripts that read from right to left put in order,
/// letters joined as their script joins them.
std::vector<GlyphRun> ShapeText(std::span<const FontChoice> fonts, std::string_view text);

} // namespace platform
