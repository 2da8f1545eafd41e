#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/printing/FontMetrics.h"

namespace platform {

/// The file that a family's face is drawn from.
struct FaceSource {
    std::string_view file;
    bool slanted = false; ///< the file is upright and its glyphs are to be slanted
};

/// Returns the file for a font that a report names: a font from the packages with the same widths,
/// so that a report has the same lines and pages on every machine. An unknown family is Arial.
FaceSource SourceOf(std::string_view family, Weight weight, Slant slant);

/// Returns the files for characters that a family's own file lacks, best first.
std::vector<std::string_view> FallbackFiles(Weight weight);

/// Returns the path of a font file of this name, empty if it isn't installed. Searches the system's
/// and the user's font folders, and `fonts` beside the program.
std::filesystem::path FindFontFile(std::string_view name);

} // namespace platform
