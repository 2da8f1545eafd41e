#include "platform/printing/TableLayout.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

/// A row that is taller than a page begins on a page that has room for this many of its lines.
constexpr std::size_t kLinesOfTallRow = 4;

/// A table of up to so many rows without a header stays on one page: such tables are sums, and the
/// last row would mean little by itself on the next page.
constexpr std::size_t kRowsKept = 5;

} // namespace

TableLayout::TableLayout(PageMaker& maker, FontMetrics& metrics, const PrintStyle& style,
                         const PrintTable& table, FittedColumns columns)
    : maker_(maker),
      style_(style),
      table_(table),
      columns_(std::move(columns)),
      header_(metrics, style, table, columns_, RowKind::Header),
      row_(metrics, style, table, columns_, RowKind::Body) {
    std::vector<std::string_view> cells(table.header.cells.begin(), table.header.cells.end());
    header_.Fill(cells);
}

void TableLayout::Begin(Twips y) {
    y_ = y;
    segmentTop_ = y;
}

/// A header row that takes more than half the page isn't repeated: no row would fit below it.
Twips TableLayout::RepeatedHeight() const {
    if (table_.header.cells.empty()) return 0;
    const Twips height = header_.Height();
    return height > (maker_.Bottom() - maker_.Top()) / 2 ? 0 : height;
}

bool TableLayout::IsTall() const {
    return row_.Height() > maker_.Bottom() - maker_.Top() - RepeatedHeight();
}

/// Returns how much of the table has to fit below the place where it begins.
Twips TableLayout::BeginningHeight() const {
    if (IsTall()) return RepeatedHeight() + row_.HeightOf(kLinesOfTallRow);
    const bool isKept = table_.header.cells.empty() && table_.rowCount <= kRowsKept;
    const auto others = isKept ? static_cast<Twips>(table_.rowCount) - 1 : 0;
    const Twips whole = row_.Height() + others * row_.HeightOf(1);
    return RepeatedHeight() + (whole <= maker_.Bottom() - maker_.Top() ? whole : row_.Height());
}

void TableLayout::Add(std::span<const std::string_view> cells) {
    row_.Fill(cells);
    if (!headerDrawn_) {
        if (!Fits(BeginningHeight()) && y_ > maker_.Top()) {
            maker_.NewPage();
            Begin(maker_.Top());
        }
        DrawHeader();
    }
    if (!Fits(row_.Height()) && pageHasRow_ &&
        (!IsTall() || row_.LinesIn(maker_.Bottom() - y_) == 0)) {
        BreakPage();
    }
    if (Fits(row_.Height())) {
        DrawRow(row_);
    } else {
        DrawTallRow(row_);
    }
}

Twips TableLayout::End() {
    if (!headerDrawn_) {
        if (!Fits(RepeatedHeight()) && y_ > maker_.Top()) {
            maker_.NewPage();
            Begin(maker_.Top());
        }
        DrawHeader();
    }
    EndSegment();
    return y_;
}

void TableLayout::DrawHeader() {
    headerDrawn_ = true;
    if (table_.header.cells.empty()) return;
    if (!Fits(header_.Height())) return DrawTallRow(header_);
    if (table_.header.background) {
        PrintStyle fill;
        fill.penStyle = PenStyle::None;
        fill.brushStyle = BrushStyle::Solid;
        fill.brushColor = *table_.header.background;
        Twips width = 0;
        for (const Twips column : columns_.widths)
            width += column;
        maker_.Box(fill, maker_.Left(), y_, maker_.Left() + width, y_ + header_.Height());
    }
    header_.Draw(maker_, maker_.Left(), y_, 0, header_.LineCount());
    y_ += header_.Height();
    if (LinesOf(table_.border).belowHeader) DrawRowLine();
}

void TableLayout::DrawRow(TableRowLayout& row) {
    if (pageHasRow_ && LinesOf(table_.border).rows) DrawRowLine();
    row.Draw(maker_, maker_.Left(), y_, 0, row.LineCount());
    y_ += row.Height();
    pageHasRow_ = true;
}

void TableLayout::DrawTallRow(TableRowLayout& row) {
    std::size_t first = 0;
    while (first < row.LineCount()) {
        // Each page takes at least one line, so that the loop ends whatever the page's height.
        const std::size_t room = std::max<std::size_t>(row.LinesIn(maker_.Bottom() - y_), 1);
        const std::size_t end = std::min(first + room, row.LineCount());
        row.Draw(maker_, maker_.Left(), y_, first, end);
        y_ += row.HeightOf(end - first);
        first = end;
        if (first == row.LineCount()) break;
        EndSegment();
        maker_.NewPage();
        Begin(maker_.Top());
        if (&row != &header_ && RepeatedHeight() > 0) DrawHeader();
    }
    pageHasRow_ = true;
}

void TableLayout::BreakPage() {
    EndSegment();
    maker_.NewPage();
    Begin(maker_.Top());
    pageHasRow_ = false;
    if (RepeatedHeight() > 0) DrawHeader();
}

void TableLayout::DrawRowLine() {
    Twips right = maker_.Left();
    for (const Twips column : columns_.widths)
        right += column;
    maker_.Line(style_, maker_.Left(), y_, right, y_);
}

void TableLayout::EndSegment() {
    if (y_ == segmentTop_) return;
    const BorderLines lines = LinesOf(table_.border);
    Twips x = maker_.Left();
    for (std::size_t i = 0; i < columns_.widths.size(); ++i) {
        if (i == 0 ? lines.sides : lines.columns) maker_.Line(style_, x, segmentTop_, x, y_);
        x += columns_.widths[i];
    }
    if (lines.sides) maker_.Line(style_, x, segmentTop_, x, y_);
    if (lines.top) maker_.Line(style_, maker_.Left(), segmentTop_, x, segmentTop_);
    if (lines.bottom) maker_.Line(style_, maker_.Left(), y_, x, y_);
}

} // namespace platform
