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
    connect(&model_, &GridModel::AllRead, this, [this] { Fit(firstColumn_, sizing_); });
    connect(this, &QTableView::doubleClicked, this, [this] { Q_EMIT RowChosen(SelectedId()); });

    auto* const copy = new QAction(tr("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &Grid::CopySelection);
    addAction(copy);
}

std::int32_t Grid::SelectedId() const {
    const QModelIndex current = currentIndex();
    if (!current.isValid()) return 0;
    const platform::Value id = model_.CellValue(current.row(), 0);
    if (id.IsBlank()) return 0;
    try {
        return id.AsLong();
    } catch (const platform::Error&) {
        return 0;
    }
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
            // What parts cells and rows can't stand inside a cell.
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
    if (isEnter && currentIndex().isValid()) {
        Q_EMIT RowChosen(SelectedId());
        return;
    }
    QTableView::keyPressEvent(event);
}

/// A text that its column cuts off shows whole under the pointer.
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

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) Q_EMIT SelectionMoved();
}

void SetupGrid(Grid& grid) {
    grid.setFrameShape(QFrame::StyledPanel);
    grid.setShowGrid(true);
    grid.setCornerButtonEnabled(false);
    grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

platform::FieldType LoadGrid(Grid& grid, platform::Recordset rows, HeaderFont header) {
    const bool updated = grid.updatesEnabled();
    grid.setUpdatesEnabled(false);
    grid.Model().SetBoldHeader(header == HeaderFont::Bold);
    grid.Model().SetRows(std::move(rows));
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
