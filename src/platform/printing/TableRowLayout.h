#pragma once

#include <deque>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/printing/ColumnWidths.h"
#include "platform/printing/PageMaker.h"

namespace platform {

enum class RowKind : std::uint8_t { Header, Body };

/// One row of a table, broken into lines and ready to be drawn. It is made once per table and
/// filled again for each row.
class TableRowLayout {
  public:
    TableRowLayout(FontMetrics& metrics, const PrintStyle& style, const PrintTable& table,
                   const FittedColumns& columns, RowKind kind);

    /// The cells must outlive the drawing.
    void Fill(std::span<const std::string_view> cells);

    std::size_t LineCount() const { return lineCount_; }
    Twips Height() const { return HeightOf(lineCount_); }
    /// Returns the height of a part with so many lines.
    Twips HeightOf(std::size_t lines) const;
    /// Returns how many lines fit into a height.
    std::size_t LinesIn(Twips height) const;

    /// Draws the lines from `first` to before `end` with the row's upper left corner at (x, y).
    void Draw(PageMaker& maker, Twips x, Twips y, std::size_t first, std::size_t end) const;

  private:
    struct Cell {
        std::size_t begin = 0; ///< of its lines
        std::size_t end = 0;
        const TextInk* ink = nullptr;
    };

    const TextInk& InkOf(std::size_t column) const;
    Twips Inset(std::size_t column) const;
    void FillCell(std::size_t column, std::string_view text);
    bool BreakCell(std::size_t column, const TextInk& ink, std::string_view text);
    /// A part of a text, and the least size in points that it is set in to stay in one line.
    struct WholeText {
        std::string_view text;
        double leastSize = 0;
    };
    WholeText WholePart(std::size_t column, std::string_view text) const;
    std::string_view Shortened(std::size_t column, std::string_view text);
    const TextInk& FittingInk(std::size_t column, std::string_view text);
    Twips LineX(std::size_t column, const MeasuredLine& line) const;
    Twips CurrencyX(const TextMeasure& measure, Twips right, const MeasuredLine& line) const;

    FontMetrics& metrics_;
    const PrintStyle& style_;
    const PrintTable& table_;
    const FittedColumns& columns_;
    RowKind kind_;
    TextInk plain_;
    TextInk bold_;
    std::map<std::pair<bool, int>, TextInk> smaller_; ///< by bold and tenths of the size
    Twips spaceBefore_;
    Twips spaceAfter_;
    Twips inset_;
    Twips lineHeight_;
    std::vector<Cell> cells_;
    std::vector<MeasuredLine> lines_;
    std::deque<std::string> made_; ///< texts that were cleaned, cut or shortened
    std::size_t lineCount_ = 1;
};

} // namespace platform
