#include "core/grid/Grid.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "core/RowsetTable.h"
#include "core/binding/Tags.h"
#include "platform/qt/Text.h"

namespace core::grid {

namespace {

constexpr int kRowPadding = 8;

} // namespace

Grid::Grid(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { Q_EMIT HeaderClicked(model_.Caption(column)); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &Grid::ColumnResized);
    connect(&model_, &GridModel::AllRead, this, [this] { Fit(firstColumn_, sizing_); });
    connect(this, &QTableView::doubleClicked, this, &Grid::ChooseRow);

    auto* const copy = new QAction(tr("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &Grid::CopySelection);
    addAction(copy);
}

int Grid::SelectedCount() const {
    int rows = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        rows += range.height();
    return rows;
}

int Grid::SelectedRow() const {
    const QItemSelection rows = selectionModel()->selection();
    return rows.size() == 1 && rows.front().height() == 1 ? rows.front().top() : -1;
}

std::int32_t Grid::IdInRow(int row) const {
    const platform::Value id = model_.CellValue(row, 0);
    if (id.IsBlank()) return 0;
    try {
        return id.AsLong();
    } catch (const platform::Error&) {
        return 0;
    }
}

std::int32_t Grid::SelectedId() const {
    const int row = SelectedRow();
    return row < 0 ? 0 : IdInRow(row);
}

std::vector<std::int32_t> Grid::SelectedIds() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    std::vector<std::int32_t> ids;
    for (const int row : rows) {
        if (const std::int32_t id = IdInRow(row); id != 0) ids.push_back(id);
    }
    return ids;
}

bool Grid::SelectId(std::int32_t id) {
    const std::string wanted = std::to_string(id);
    for (int row = 0; row < model_.rowCount(); ++row) {
        const platform::Value value = model_.CellValue(row, 0);
        if (value.IsNull() || value.AsText() != wanted) continue;
        const int column = std::max(0, horizontalHeader()->logicalIndexAt(0));
        setCurrentIndex(model_.index(row, column));
        return true;
    }
    return false;
}

void Grid::SelectNone(int row) {
    clearSelection();
    const int last = model_.rowCount() - 1;
    const int column = std::max(0, horizontalHeader()->logicalIndexAt(0));
    selectionModel()->setCurrentIndex(model_.index(std::min(row, last), column),
                                      QItemSelectionModel::NoUpdate);
}

void Grid::ChooseRow() {
    if (SelectedRow() >= 0) Q_EMIT RowChosen(SelectedId());
}

void Grid::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

QString Grid::SelectedText() const {
    QModelIndexList chosen = selectionModel()->selectedRows();
    std::sort(chosen.begin(), chosen.end());
    QString text;
    for (const QModelIndex& row : chosen) {
        QStringList cells;
        for (int column = 0; column < model_.columnCount(); ++column) {
            if (isColumnHidden(column)) continue;
            // Tabs and line ends inside a cell would read as separators.
            cells << model_.CellText(row.row(), column).simplified();
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

void Grid::CopySelection() const {
    const QString text = SelectedText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

QString Grid::StoreName() const {
    const std::string tag = binding::TagOf(*this);
    return tag.empty() ? objectName() : platform::qt::ToScreen(tag);
}

void Grid::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && SelectedRow() >= 0) {
        ChooseRow();
        return;
    }
    // If nothing is selected the first arrow key selects the current row instead of skipping it.
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isArrow && SelectedCount() == 0 && currentIndex().isValid()) {
        setCurrentIndex(currentIndex());
        return;
    }
    QTableView::keyPressEvent(event);
}

/// Shows the whole text under the pointer if its column cuts it off.
bool Grid::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    QString text;
    if (index.isValid()) text = model_.CellText(index.row(), index.column());
    const bool isCut =
        fontMetrics().horizontalAdvance(text) + kRowPadding > visualRect(index).width();
    QToolTip::showText(help->globalPos(), isCut ? text : QString(), viewport());
    return true;
}

void Grid::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (emptyText_.isEmpty() || model_.rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    constexpr int kMargin = 24;
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void Grid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (sharing_) ShareWidth();
}

void Grid::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    wasSeen_ = true;
}

void Grid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT SelectionMoved();
}

void SetupGrid(Grid& grid) {
    grid.setFrameShape(QFrame::StyledPanel);
    grid.setShowGrid(true);
    grid.setCornerButtonEnabled(false);
    grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

platform::FieldType LoadGrid(Grid& grid, platform::Recordset rows, HeaderFont header) {
    return LoadGrid(grid, std::make_unique<core::RowsetTable>(std::move(rows)), header);
}

platform::FieldType LoadGrid(Grid& grid, std::unique_ptr<core::Table> table, HeaderFont header) {
    const bool updated = grid.updatesEnabled();
    grid.setUpdatesEnabled(false);
    grid.Model().SetBoldHeader(header == HeaderFont::Bold);
    grid.Model().SetTable(std::move(table));
    grid.ColumnsLoaded();
    grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    grid.setUpdatesEnabled(updated);
    return grid.Model().IsLoaded() ? grid.Model().TypeOf(0) : platform::FieldType::Text;
}

void SetCellColor(Grid& grid, int column, int row, QColor color) {
    grid.Model().SetColor(column, row, color);
}

void FormatColumn(Grid& grid, int column, std::string_view pattern) {
    if (column < 0 || column >= grid.Model().columnCount()) return;
    ColumnFormat format = FormatOf(grid.Model().TypeOf(column), {});
    format.kind = ColumnFormat::Kind::Pattern;
    format.pattern = pattern;
    grid.Model().SetFormat(column, std::move(format));
}

void FormatColumnYesNo(Grid& grid, int column) {
    grid.Model().SetFormat(column, {ColumnFormat::Kind::YesNo, {}, false});
}

} // namespace core::grid
