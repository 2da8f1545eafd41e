// The commands of a [TEXT] section that use cells of the page: lines, boxes, positions and the
// layout grid.

#include <fmt/core.h>

#include "platform/values/Conversions.h"
#include "reports/ReportError.h"
#include "reports/clsRptText.h"

namespace reports {

using platform::PrintSurface;
using platform::Twips;

namespace {

constexpr int kGridParts = 20;
/// A finer grid would have more lines than the page has twips: only the numbered ones are drawn.
constexpr int kFinestGrid = 20'000;
constexpr platform::PrintColor kNumberedLine = 0x808080;
constexpr platform::PrintColor kPlainLine = 0xC0C0C0;
constexpr Twips kNumberedWidth = 3;
constexpr Twips kPlainWidth = 2;
constexpr int kDownwards = 2700;
constexpr double kGridFont = 6;

/// Converts cells of the page's grid to twips, in single precision and 16 bits: existing
/// definitions are laid out for both.
class CellMap {
  public:
    CellMap(const PrintSurface& page, int scaleX, int scaleY)
        : left_(page.MarginLeft()),
          top_(page.MarginTop()),
          width_(CellSize(page.PrintWidth(), scaleX)),
          height_(CellSize(page.PrintHeight(), scaleY)) {}

    Twips X(int cell) const { return Place(left_, cell, width_); }
    Twips Y(int cell) const { return Place(top_, cell, height_); }

  private:
    static float CellSize(Twips length, int scale) {
        if (scale == 0)
            throw platform::ConversionError("division by zero: SCALE gives the page no cells");
        return static_cast<float>(length) / static_cast<float>(scale);
    }
    static Twips Place(Twips margin, int cell, float size) {
        const float place = static_cast<float>(margin) + static_cast<float>(cell) * size;
        return platform::RoundToInt16(place);
    }

    Twips left_;
    Twips top_;
    float width_;
    float height_;
};

int GridStep(int scale) {
    const int step = scale / kGridParts;
    if (step == 0) {
        throw platform::ConversionError(
            fmt::format("division by zero: DRAWGRID needs a SCALE of at least {}", kGridParts));
    }
    return step;
}

/// Calls `draw` for each line of one direction, with whether it is numbered.
template <typename Draw>
void ForEachGridLine(int scale, int step, Draw draw) {
    const std::int64_t between = scale > kFinestGrid ? step : 1;
    for (std::int64_t at = 0; at <= scale; at += between)
        draw(static_cast<int>(at), at % step == 0);
}

void SetGridPen(platform::PrintStyle& style, bool numbered) {
    style.penColor = numbered ? kNumberedLine : kPlainLine;
    style.penWidth = numbered ? kNumberedWidth : kPlainWidth;
}

void DrawGridLines(PrintSurface& page, const CellMap& cells, int scaleX, int scaleY) {
    const int stepX = GridStep(scaleX);
    const int stepY = GridStep(scaleY);
    const Twips x0 = page.CurrentX();
    const Twips y0 = page.CurrentY();
    page.ApplyStyle("Default");
    platform::PrintStyle& style = page.Style();
    style.brushStyle = platform::BrushStyle::Transparent;
    style.fontName = "Arial";
    style.fontSize = kGridFont;
    const Twips left = page.MarginLeft();
    const Twips top = page.MarginTop();
    ForEachGridLine(scaleY, stepY, [&](int y, bool numbered) {
        SetGridPen(style, numbered);
        page.DrawLine(left, cells.Y(y), page.PageWidth() - page.MarginRight(), cells.Y(y));
        if (!numbered) return;
        page.MoveTo(left, cells.Y(y));
        page.TextAt(std::to_string(y));
    });
    ForEachGridLine(scaleX, stepX, [&](int x, bool numbered) {
        SetGridPen(style, numbered);
        page.DrawLine(cells.X(x), top, cells.X(x), page.PageHeight() - page.MarginBottom());
        if (!numbered) return;
        page.MoveTo(cells.X(x), top);
        style.textAngle = kDownwards;
        page.TextAt(std::to_string(x));
        style.textAngle = 0;
    });
    page.ApplyStyle("Default");
    page.MoveTo(x0, y0);
}

} // namespace

void clsRptText::DrawShape(const TextCommand& command, PrintSurface& page) const {
    const CellMap cells(page, ScaleX, ScaleY);
    if (command.Kind == TextCommandKind::Grid) {
        DrawGridLines(page, cells, ScaleX, ScaleY);
        return;
    }
    const auto [x1, y1, x2, y2] = command.Coordinates;
    const Twips left = cells.X(x1);
    const Twips top = cells.Y(y1);
    if (command.Kind == TextCommandKind::Locate) {
        page.Locate(left, top);
    } else if (command.Kind == TextCommandKind::Line) {
        page.DrawLine(left, top, cells.X(x2), cells.Y(y2));
    } else {
        page.DrawRectangle(left, top, cells.X(x2), cells.Y(y2));
    }
}

} // namespace reports
