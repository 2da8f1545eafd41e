#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <ranges>

#include "core/Settings.h"
#include "core/grid/Grid.h"
#include "platform/qt/Text.h"

namespace core::grid {

namespace {

constexpr int kMargin = 17;       // 250 twips, a sixth of an inch
constexpr int kLeastWidth = 24;   // of a column beside those that the user has resized
constexpr int kSamples = 500;     // rows that are measured; up to so many, all of them
constexpr int kFirstSamples = 60; // until all rows are read, when they are measured again

constexpr std::string_view kGridInfoKey = R"(SOFTWARE\Vestrel\GridInfo)";

/// Returns the registry key of a grid's widths; a panel with settings of its own names the key in
/// the grid's property "registryKey".
std::string WidthsKey(const Grid& grid) {
    const QString own = grid.property("registryKey").toString();
    return own.isEmpty() ? std::string(kGridInfoKey) : platform::qt::FromScreen(own);
}

std::string WidthsName(const Grid& grid) {
    return "ColData_" + platform::qt::FromScreen(grid.StoreName());
}

/// Returns the rows to measure: all of them, or `samples` rows spread evenly from first to last.
std::vector<int> SampleRows(int rowCount, int samples = kSamples) {
    std::vector<int> rows(static_cast<std::size_t>(std::min(rowCount, samples)));
    const int count = static_cast<int>(rows.size());
    for (int i = 0; i < count; ++i) {
        const auto at =
            rowCount <= samples ? i : static_cast<std::int64_t>(rowCount - 1) * i / (samples - 1);
        rows[static_cast<std::size_t>(i)] = static_cast<int>(at);
    }
    return rows;
}

/// If the columns want more width than there is, returns smaller widths: every column is cut down
/// to the largest common width that fits, so that only the widest become narrower and dates and
/// amounts stay whole.
std::vector<int> Capped(std::vector<int> wanted, int first, int total) {
    const auto columns = std::ranges::subrange(wanted.begin() + first, wanted.end());
    const auto sumUnder = [&](int cap) {
        std::int64_t sum = 0;
        for (const int width : columns)
            sum += std::min(width, cap);
        return sum;
    };
    int fits = 0;
    int tooWide = columns.empty() ? 0 : std::ranges::max(columns);
    if (sumUnder(tooWide) <= total) return wanted;
    while (tooWide - fits > 1) {
        const int middle = fits + (tooWide - fits) / 2;
        (sumUnder(middle) <= total ? fits : tooWide) = middle;
    }
    for (int& width : columns)
        width = std::min(width, std::max(1, fits));
    return wanted;
}

/// Splits `total` by weight, to the last pixel; columns before `first` get nothing.
std::vector<int> Share(const std::vector<int>& weights, int first, int total) {
    std::vector<int> shares(weights.size(), 0);
    const auto begin = weights.begin() + first;
    const std::int64_t sum = std::accumulate(begin, weights.end(), std::int64_t{0});
    if (sum == 0) return shares;
    std::int64_t before = 0;
    for (auto i = static_cast<std::size_t>(first); i < weights.size(); ++i) {
        const std::int64_t upTo = before + weights[i];
        shares[i] = static_cast<int>(upTo * total / sum - before * total / sum);
        before = upTo;
    }
    return shares;
}

} // namespace

void Grid::SetWidths(const std::vector<int>& widths, int firstColumn) {
    const QScopedValueRollback sizing(sizingColumns_, true);
    for (int column = 0; column < model_.columnCount(); ++column) {
        const int width = column < firstColumn ? 0 : widths[static_cast<std::size_t>(column)];
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
}

void Grid::ColumnResized(int column, int before, int now) {
    // If a width changes to or from 0, the column was hidden or shown.
    if (!sizingColumns_ && before > 0 && now > 0) ownWidths_[column] = now;
}

void Grid::ColumnsLoaded() {
    QString columns = StoreName();
    for (int column = 0; column < model_.columnCount(); ++column)
        columns += QLatin1Char('\n') + model_.Caption(column);
    if (columns != columns_) ownWidths_.clear();
    columns_ = columns;
}

void Grid::ApplyOwnWidths() {
    for (const auto& [column, width] : ownWidths_) {
        if (column < model_.columnCount() && !isColumnHidden(column)) setColumnWidth(column, width);
    }
}

std::vector<int> Grid::WantedWidths() const {
    const QFontMetrics body(font());
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics header(bold);
    const bool isAtHand = model_.RowsAtHand() == model_.rowCount();
    const std::vector<int> rows =
        SampleRows(model_.RowsAtHand(), isAtHand ? kSamples : kFirstSamples);
    std::vector<int> widths;
    for (int column = 0; column < model_.columnCount(); ++column) {
        int widest = header.horizontalAdvance(model_.Caption(column));
        for (const int row : rows) {
            widest = std::max(widest, body.horizontalAdvance(model_.CellText(row, column)));
        }
        widths.push_back(widest + kMargin);
    }
    return widths;
}

void Grid::Fit(int firstColumn, Sizing sizing) {
    sharing_ = false;
    sizing_ = sizing;
    if (sizing == Sizing::Manual || model_.rowCount() == 0 || model_.columnCount() == 0) {
        if (sizing != Sizing::Manual && model_.columnCount() > 0) {
            for (int column = 0; column < firstColumn; ++column)
                setColumnHidden(column, true);
        }
        return;
    }
    wanted_ = WantedWidths();
    firstColumn_ = std::min(firstColumn, model_.columnCount());
    if (sizing == Sizing::FitText) {
        SetWidths(wanted_, firstColumn_);
        ApplyOwnWidths();
        return;
    }
    sharing_ = true;
    ShareWidth();
}

/// Splits a width among the columns; one resized by the user keeps its width if that leaves
/// something for the others.
std::vector<int> Grid::SharedWidths(int width) const {
    std::vector<int> weights = wanted_;
    const bool isTooNarrow =
        width < std::accumulate(wanted_.begin() + firstColumn_, wanted_.end(), 0);
    if (sizing_ == Sizing::FillGrid && isTooNarrow) return wanted_;
    int own = 0;
    int others = 0;
    for (int column = firstColumn_; column < std::ssize(weights); ++column) {
        const auto found = ownWidths_.find(column);
        if (found == ownWidths_.end()) {
            ++others;
            continue;
        }
        own += found->second;
        weights[static_cast<std::size_t>(column)] = 0;
    }
    if (own == 0 || others == 0 || width - own < others * kLeastWidth) {
        return Share(Capped(wanted_, firstColumn_, width), firstColumn_, width);
    }
    const int left = width - own;
    std::vector<int> widths = Share(Capped(weights, firstColumn_, left), firstColumn_, left);
    for (const auto& [column, ownWidth] : ownWidths_) {
        if (column < std::ssize(widths)) widths[static_cast<std::size_t>(column)] = ownWidth;
    }
    return widths;
}

/// Splits the width that remains beside the vertical scroll bar, if one is needed.
void Grid::ShareWidth() {
    if (static_cast<int>(wanted_.size()) != model_.columnCount()) return;
    const int rowsHeight = model_.rowCount() * verticalHeader()->defaultSectionSize();
    const int room = height() - 2 * frameWidth() - horizontalHeader()->sizeHint().height();
    const int bar = rowsHeight > room ? verticalScrollBar()->sizeHint().width() : 0;
    const int width = QTableView::width() - 2 * frameWidth() - bar;
    SetWidths(SharedWidths(width), firstColumn_);
    updateGeometries(); // updates the scroll bars now
}

void AutoSizeGrid(Grid& grid, int firstColumn, Sizing sizing) {
    const bool updated = grid.updatesEnabled();
    grid.setUpdatesEnabled(false);
    grid.Fit(firstColumn, sizing);
    grid.setUpdatesEnabled(updated);
}

void AutoSizeByLength(Grid& grid, int firstColumn) {
    const GridModel& model = grid.Model();
    if (model.rowCount() == 0 || model.columnCount() == 0) return;
    const std::vector<int> rows = SampleRows(model.rowCount());
    std::vector<int> lengths;
    for (int column = 0; column < model.columnCount(); ++column) {
        auto longest = model.Caption(column).size();
        for (const int row : rows)
            longest = std::max(longest, model.CellText(row, column).size());
        lengths.push_back(static_cast<int>(longest));
    }
    grid.SetWidths(Share(lengths, firstColumn, grid.viewport()->width()), firstColumn);
}

void LoadColumnWidths(Grid& grid) {
    if (!grid.Model().IsLoaded()) return;
    const QString stored =
        platform::qt::ToScreen(GetRegString(WidthsKey(grid), WidthsName(grid), {}));
    if (stored.isEmpty()) return;
    std::vector<int> widths;
    for (const QString& part : stored.split(QLatin1Char(','))) {
        bool isNumber = false;
        const int width = part.toInt(&isNumber);
        if (!isNumber || width < 0) return;
        widths.push_back(width);
    }
    if (static_cast<int>(widths.size()) != grid.Model().columnCount()) return;
    grid.SetWidths(widths, 0);
}

std::optional<platform::RegistryText> ColumnWidthsText(const Grid& grid) {
    if (!grid.Model().IsLoaded() || !grid.WasSeen()) return std::nullopt;
    QStringList widths;
    for (int column = 0; column < grid.Model().columnCount(); ++column) {
        widths << QString::number(grid.columnWidth(column));
    }
    return platform::RegistryText{WidthsKey(grid), WidthsName(grid),
                                  platform::qt::FromScreen(widths.join(QLatin1Char(',')))};
}

void SaveColumnWidths(const Grid& grid) {
    if (const auto widths = ColumnWidthsText(grid)) {
        SetRegString(widths->key, widths->name, widths->value);
    }
}

} // namespace core::grid
