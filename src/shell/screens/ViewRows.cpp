// Reads the rows of a view into its list.

#include <QHeaderView>
#include <QScrollBar>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/grid/Grid.h"
#include "core/grid/GridColumns.h"
#include "platform/qt/Text.h"
#include "shell/CellMarks.h"
#include "shell/ViewTexts.h"
#include "shell/screens/ViewPanel.h"
#include "ui_ViewPanel.h"

namespace shell::screens {

using core::grid::Grid;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr int kFirstShown = 1; // after the id column

std::optional<QColor> ColorOf(Mark mark) {
    switch (mark) {
        case Mark::Yellow:
            return QColor::fromRgb(core::grid::kPaleYellow);
        case Mark::Red:
            return QColor::fromRgb(core::grid::kPaleRed);
        case Mark::None:
            break;
    }
    return std::nullopt;
}

} // namespace

void ViewPanel::Reload(Cause cause) {
    if (kind_ == core::kNone) return;
    const std::int32_t id = selectedId_;
    const int scrolled = ui_->grd->verticalScrollBar()->value();
    const int row = selectedRow_;
    ReadRows();
    ColorCells();
    ui_->grd->Model().Narrow(ui_->txtSearch->text(), kFirstShown);
    core::grid::SizeColumns(*ui_->grd, kFirstShown);
    ShowSortArrow();
    selectedId_ = id;
    selectedRow_ = row;
    Select(id, cause);
    if (cause == Cause::Broadcast) ui_->grd->verticalScrollBar()->setValue(scrolled);
    ShowEmptyText();
    Q_EMIT StatusChanged();
    Q_EMIT SelectionMoved();
}

void ViewPanel::ReadRows() {
    if (kind_ == core::kTransaction && state_.sortField.empty()) {
        ReadTransactions();
        return;
    }
    platform::Recordset rows;
    OpenRows(rows, platform::CursorMode::ReadOnly);
    if (rows.IsOpen()) {
        const std::string order =
            SortText(state_, [&](std::string_view caption) { return rows.HasField(caption); });
        if (!order.empty()) rows.Sort(order);
    }
    core::grid::LoadGrid(*ui_->grd, std::move(rows));
}

void ViewPanel::OpenRows(platform::Recordset& rows, platform::CursorMode mode) {
    fault_.clear();
    try {
        rows.Open(core::App().Connection, BuildViewSql(kind_, Filter(), IdColumn::First), mode);
        count_ = rows.RecordCount();
    } catch (const platform::Error& failure) {
        rows.Close();
        count_ = -1;
        fault_ = failure.what();
    }
}

/// Shows the first page before the other rows are read: there may be a million.
void ViewPanel::ReadTransactions() {
    platform::Recordset rows;
    OpenRows(rows, platform::CursorMode::ReadAsNeeded);
    core::grid::LoadGrid(*ui_->grd, std::move(rows));
    ui_->grd->Model().ReadOn();
}

void ViewPanel::ColorCells() {
    const int column = MarkedColumn(kind_);
    if (column < 0) return;
    ui_->grd->Model().SetColorRule(column, [kind = kind_](const platform::Value& word) {
        return word.IsNull() ? std::nullopt : ColorOf(MarkOf(kind, word.AsText()));
    });
}

void ViewPanel::ShowSortArrow() {
    QHeaderView& header = *ui_->grd->horizontalHeader();
    const Qt::SortOrder order =
        state_.sortOrder == "DESC" ? Qt::DescendingOrder : Qt::AscendingOrder;
    int sorted = -1;
    for (int column = 0; column < ui_->grd->Model().columnCount(); ++column) {
        if (FromScreen(ui_->grd->Model().Caption(column)) == state_.sortField) sorted = column;
    }
    header.setSortIndicatorShown(sorted >= 0);
    header.setSortIndicator(sorted, order);
}

/// Selects the row with this id, or else the first one. After a broadcast that deleted the record
/// no row is selected, so that the next command can't reach another record; the id stays as it was
/// until the user selects a row, and the arrow keys continue from the deleted row's place.
void ViewPanel::Select(std::int32_t id, Cause cause) {
    Grid& grid = *ui_->grd;
    if (id != 0 && grid.SelectId(id)) return;
    if (id != 0 && cause == Cause::Broadcast) {
        grid.SelectNone(selectedRow_);
        return;
    }
    selectedId_ = 0;
    if (grid.Model().rowCount() > 0) grid.setCurrentIndex(grid.Model().index(0, kFirstShown));
}

void ViewPanel::Narrow() {
    const std::int32_t id = selectedId_;
    ui_->grd->Model().Narrow(ui_->txtSearch->text(), kFirstShown);
    Select(id, Cause::Choice);
    ShowEmptyText();
    Q_EMIT StatusChanged();
    Q_EMIT SelectionMoved();
}

void ViewPanel::ShowEmptyText() {
    const std::string search = FromScreen(ui_->txtSearch->text());
    ui_->grd->SetEmptyText(ToScreen(EmptyText(
        {.kind = kind_, .count = count_, .search = search, .filter = Filter(), .fault = fault_})));
}

} // namespace shell::screens
