#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

enum class Weight : std::uint8_t { Regular, Bold };
enum class Slant : std::uint8_t { Upright, Italic };

/// The number of a face of a family in its metrics.
using FaceId = std::uint16_t;

/// The height of a face above and below its baseline and the room between two lines, in ems.
struct FaceHeights {
    double ascent = 0;
    double descent = 0;
    double leading = 0;

    double Line() const { return ascent + descent + leading; }
};

/// Everything the printing surface needs to know about fonts. All lengths are in ems: at 10 points
/// an em is 10 points.
class FontMetrics {
  public:
    virtual ~FontMetrics() = default;

    /// Returns the face of this family, or the one that takes its place; never fails. The same name
    /// gives the same number for the life of the metrics.
    virtual FaceId Face(std::string_view family, Weight weight, Slant slant) = 0;
    virtual FaceHeights Heights(FaceId face) const = 0;
    /// Returns the advance width of a UTF-8 text without line ends.
    virtual double Width(FaceId face, std::string_view text) const = 0;
};

/// Every character half an em wide and every line 1.2 ems high, bold 0.6 em wide: for tests, and
/// for output that has no pages.
class FixedMetrics : public FontMetrics {
  public:
    FaceId Face(std::string_view family, Weight weight, Slant slant) override;
    FaceHeights Heights(FaceId face) const override;
    double Width(FaceId face, std::string_view text) const override;
};

} // namespace platform
