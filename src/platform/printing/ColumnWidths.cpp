#include "platform/printing/ColumnWidths.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// The width of a column without a width of its own if no room is left.
constexpr double kLeastShare = kTwipsPerInch / 2.0;
/// If columns are too wide by less than this, it is only by rounding: the text keeps its size.
constexpr double kRoundingScale = 0.97;

double WantedWidth(const TableColumn& column, Twips printWidth) {
    return column.percent > 0 ? printWidth * column.percent / 100 : double(column.width);
}

std::vector<double> WantedWidths(std::span<const TableColumn> columns, Twips printWidth) {
    std::vector<double> widths;
    double sum = 0;
    double shares = 0;
    for (const TableColumn& column : columns) {
        widths.push_back(WantedWidth(column, printWidth));
        sum += widths.back();
        shares += widths.back() > 0 ? 0 : 1;
    }
    const double left = (printWidth - sum) / std::max(shares, 1.0);
    const double share =
        std::max(left, std::min(kLeastShare, double(printWidth) / std::max(shares, 1.0)));
    for (double& width : widths) {
        if (width <= 0) width = share;
    }
    return widths;
}

} // namespace

FittedColumns FitColumns(std::span<const TableColumn> columns, Twips printWidth) {
    const std::vector<double> wanted = WantedWidths(columns, printWidth);
    double sum = 0;
    for (const double width : wanted)
        sum += width;
    const double scale = sum > printWidth ? printWidth / sum : 1;

    FittedColumns fitted;
    fitted.textScale = scale < kRoundingScale ? scale : 1;
    // Edges are rounded rather than widths, so that the right edge is in its place.
    double edge = 0;
    Twips last = 0;
    for (const double width : wanted) {
        edge += width * scale;
        const auto next = static_cast<Twips>(std::lround(edge));
        fitted.widths.push_back(next - last);
        last = next;
    }
    return fitted;
}

} // namespace platform
