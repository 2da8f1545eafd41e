#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/FontMetrics.h"
#include "platform/printing/PrintStyle.h"

namespace platform {

/// One face at one size, measured in twips.
class TextMeasure {
  public:
    /// Measures in the font of a style; `scale` makes its size smaller.
    TextMeasure(FontMetrics& metrics, const PrintStyle& style, double scale = 1);

    Twips Width(std::string_view text) const;
    Twips LineHeight() const { return lineHeight_; }
    Twips Ascent() const { return ascent_; }
    FaceId Face() const { return face_; }
    /// Returns the size in points.
    float Size() const { return size_; }

  private:
    const FontMetrics& metrics_;
    FaceId face_;
    float size_;
    Twips ascent_;
    Twips lineHeight_;
};

/// One line of a broken text.
struct MeasuredLine {
    std::string_view text;
    Twips width = 0;
};

/// Breaks a clean text into lines no wider than `width`: at line ends, after blanks and hyphens,
/// within a word that is wider than a line. Blanks at a break belong to neither line. The lines are
/// added to `lines`, at least one, and point into `text`.
void BreakLines(const TextMeasure& measure, std::string_view text, Twips width,
                std::vector<MeasuredLine>& lines);

/// Returns the text up to its first line end, if it is all there is and no wider than `width`;
/// otherwise as much of it as fits, followed by an ellipsis, made in `scratch`.
MeasuredLine CutLine(const TextMeasure& measure, std::string_view text, Twips width,
                     std::string& scratch);

} // namespace platform
