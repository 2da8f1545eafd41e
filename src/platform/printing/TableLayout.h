#pragma once

#include <span>
#include <string_view>

#include "platform/printing/ColumnWidths.h"
#include "platform/printing/PageMaker.h"
#include "platform/printing/TableRowLayout.h"

namespace platform {

/// Lays out one table on the pages of a maker, row by row. A row that doesn't fit goes to the next
/// page, below the repeated header row; one that is taller than a page is broken between its lines.
class TableLayout {
  public:
    TableLayout(PageMaker& maker, FontMetrics& metrics, const PrintStyle& style,
                const PrintTable& table, FittedColumns columns);

    /// Begins at this height of the page. The header row waits for the first row, so that it is
    /// never the last row of a page.
    void Begin(Twips y);
    void Add(std::span<const std::string_view> cells);
    /// Draws what is left and returns the height below the table.
    Twips End();

  private:
    Twips RepeatedHeight() const;
    Twips BeginningHeight() const;
    /// Returns true if the row doesn't fit on a page of its own.
    bool IsTall() const;
    bool Fits(Twips height) const { return y_ + height <= maker_.Bottom(); }
    void DrawHeader();
    void DrawRow(TableRowLayout& row);
    void DrawTallRow(TableRowLayout& row);
    void BreakPage();
    void EndSegment();
    void DrawRowLine();

    PageMaker& maker_;
    const PrintStyle& style_;
    const PrintTable& table_;
    FittedColumns columns_;
    TableRowLayout header_;
    TableRowLayout row_;
    Twips y_ = 0;
    Twips segmentTop_ = 0;
    bool headerDrawn_ = false;
    bool pageHasRow_ = false;
};

} // namespace platform
