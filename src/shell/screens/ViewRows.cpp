// How the rows of a view come into its list.

#include <QHeaderView>
#include <QScrollBar>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
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

constexpr int kFirstShown = 1; // behind the id column

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
    if (kind_ == 0) return;
    const std::int32_t id = selectedId_;
    const int scrolled = ui_->grd->verticalScrollBar()->value();
    ReadRows();
    ColorCells();
    ui_->grd->Model().Narrow(ui_->txtSearch->text(), kFirstShown);
    core::grid::SizeColumns(*ui_->grd, kFirstShown);
    ShowSortArrow();
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
    count_ = core::OpenRecordset(rows, BuildViewSql(kind_, Filter(), IdColumn::First),
                                 core::Access::ReadOnly);
    if (rows.IsOpen()) {
        // More rows than the session counts to are shown all the same.
        count_ = rows.RecordCount();
        const std::string order =
            SortText(state_, [&](std::string_view caption) { return rows.HasField(caption); });
        if (!order.empty()) rows.Sort(order);
    }
    core::grid::LoadGrid(*ui_->grd, std::move(rows));
}

/// There may be a million of them, whose first page need not wait for the others.
void ViewPanel::ReadTransactions() {
    platform::Recordset rows;
    try {
        rows.Open(core::App().Connection, BuildViewSql(kind_, Filter(), IdColumn::First),
                  platform::CursorMode::ReadAsNeeded);
        count_ = rows.RecordCount();
    } catch (const platform::Error&) {
        count_ = -1;
    }
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

/// The row that was selected stays so, otherwise the first one becomes so; but what a broadcast
/// took away leaves its id standing until the person moves on.
void ViewPanel::Select(std::int32_t id, Cause cause) {
    Grid& grid = *ui_->grd;
    if (id != 0 && grid.SelectId(id)) return;
    if (id != 0 && cause == Cause::Broadcast) return;
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
    ui_->grd->SetEmptyText(ToScreen(
        EmptyText({.kind = kind_, .count = count_, .search = search, .filter = Filter()})));
}

} // namespace shell::screens
