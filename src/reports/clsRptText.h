#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Value.h"
#include "reports/ReportSection.h"
#include "reports/TableAttributes.h"

namespace reports {

enum class TextCommandKind : std::uint8_t {
    Paragraph,
    Sql,
    Calc,
    SepLine,
    Table,
    Line,
    Locate,
    Box,
    Grid,
};

/// A command of a [TEXT] section as it is queued while the file is read. Attributes that are empty,
/// 0 or false are not set.
struct TextCommand {
    TextCommandKind Kind = TextCommandKind::Paragraph;
    int FileLine = 0;
    std::string Text;
    std::string PenColor; ///< colours are decimal numbers, 0xBBGGRR
    std::int16_t PenWidth = 0;
    std::string FillColor;
    std::array<std::int16_t, 4> Coordinates{}; ///< X1, Y1, X2, Y2 in cells of the page's grid
    std::string FontName;
    std::string TextColor;
    std::int16_t FontSize = 0;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    std::string TableFormat;
    std::string TableHeader;
    TableAttributes Table;
};

/// A named value from a query or a calculation.
struct ReportVariable {
    std::string Name;
    platform::Value Value;
    std::int16_t FieldType = 0; ///< 0 of a calculation
};

/// Sets the format in which a variable is shown.
struct TagFormatCommand {
    std::string Tag;
    std::string Format;
    int FileLine = 0;
};

/// A [TEXT] section: paragraphs, small tables, lines and boxes, with the values of queries and
/// calculations in their text. Its commands are queued while the file is read. ShowData then runs
/// the queries and calculations, formats their values and draws the rest, so that a paragraph can
/// show the result of a calculation below it.
class clsRptText : public ReportSection {
  public:
    // Commands; `line` is their line in the file. Coordinates are integers separated by ",";
    // missing ones are 0. Throws a ConversionError or OverflowError if they aren't integers.
    void Paragraph(std::string_view text, int line);
    void SQLQuery(std::string_view sql, int line);
    void Calc(std::string_view expression, int line);
    void SepLine(std::string_view text, int line);
    void Table(std::string_view text, int line);
    void DrawGrid(int line);
    void DrawLine(std::string_view coordinates, int line);
    void DrawBox(std::string_view coordinates, int line);
    void Locate(std::string_view coordinates, int line);

    /// Returns the command that attributes apply to, which is the one queued last; null before the
    /// first command, when attributes are ignored.
    TextCommand* Last() { return commands_.empty() ? nullptr : &commands_.back(); }

    /// Shows the variable of this name in a format.
    void TagFormat(std::string_view tag, std::string_view format, int line);

    const std::vector<TextCommand>& Commands() const { return commands_; }
    const std::vector<TagFormatCommand>& TagFormats() const { return tagFormats_; }

    /// Throws a ReportError for a colour that is not a number, for shapes without a scale, for
    /// positions that don't fit a page and for a number too large to be shown as a date.
    void ShowData(platform::PrintSurface& page) override;

  private:
    void Queue(TextCommandKind kind, std::string_view text, int line);
    void QueueShape(TextCommandKind kind, std::string_view coordinates, int line);
    std::string Expand(std::string text) const;

    void RunSql(const TextCommand& command);
    void RunCalc(const TextCommand& command);
    void ApplyTagFormats();

    void Draw(const TextCommand& command, platform::PrintSurface& page) const;
    void DrawTable(const TextCommand& command, platform::PrintSurface& page) const;
    void DrawShape(const TextCommand& command, platform::PrintSurface& page) const;

    std::vector<TextCommand> commands_;
    std::vector<ReportVariable> variables_;
    std::vector<TagFormatCommand> tagFormats_;
};

} // namespace reports
