#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "platform/printing/Lengths.h"

namespace platform {

enum class TextAlign : std::uint8_t { Left, Center, Right };
enum class PenStyle : std::uint8_t { Solid, None };
/// Report definitions and engines use these numbers: 0 solid, 1 transparent.
enum class BrushStyle : std::uint8_t { Solid = 0, Transparent = 1 };
/// The level of a heading in the document's outline, h1 to h3 in HTML.
enum class HeadingLevel : std::uint8_t { None, First, Second, Third };

/// All the attributes that text, lines, boxes and tables are drawn with; a named style is one set
/// of them.
struct PrintStyle {
    std::string fontName = "Arial";
    double fontSize = 12; ///< points
    bool fontBold = false;
    bool fontItalic = false;
    bool fontUnderline = false;
    PrintColor textColor = kBlack;
    int textAngle = 0; ///< tenths of a degree, counter-clockwise; 2700 reads downwards
    TextAlign align = TextAlign::Left;

    Twips indentLeft = 0;  ///< of paragraphs
    Twips spaceBefore = 0; ///< above a paragraph, and inside each row of a table
    Twips spaceAfter = 0;  ///< below it
    Twips cellInset = 80;  ///< between a column's edge and its text, left and right

    PrintColor penColor = kBlack;
    Twips penWidth = 10;
    PenStyle penStyle = PenStyle::Solid;
    PrintColor brushColor = 0xFFFFFF;
    BrushStyle brushStyle = BrushStyle::Transparent;

    HeadingLevel heading = HeadingLevel::None;

    friend bool operator==(const PrintStyle&, const PrintStyle&) = default;
};

/// The named styles of a surface. Their names are case-sensitive.
class PrintStyles {
  public:
    /// Adds a style or replaces the one of this name.
    void Add(std::string name, PrintStyle style);
    /// Returns the style of this name; null if there is none.
    const PrintStyle* Find(std::string_view name) const;

  private:
    std::map<std::string, PrintStyle, std::less<>> styles_;
};

} // namespace platform
