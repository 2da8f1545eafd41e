#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "core/GridFormat.h"
#include "core/Table.h"
#include "core/grid/RowSearch.h"
#include "platform/database/Recordset.h"

namespace core::grid {

/// Returns the colour of a cell by its value; nothing for a plain cell.
using ColorRule = std::function<std::optional<QColor>(const platform::Value&)>;

/// Returns the colour of a row, counted from 0; nothing for a plain row.
using RowRule = std::function<std::optional<QColor>(int row)>;

/// Shows the rows of any table as text. A cell is formatted when it is painted, so a million rows
/// cost only what is visible of them.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit GridModel(QObject* parent = nullptr);

    /// Takes over a table; every column starts with the table's format. Null shows nothing.
    void SetTable(std::unique_ptr<core::Table> table);
    /// Does the same for the rows of a row set, which may be closed.
    void SetRows(platform::Recordset rows);
    /// Reads a lazily read row set in slices while the user works, until AllRead. Rows that become
    /// visible before that are read immediately.
    void ReadOn();
    /// Returns how many rows can be shown without reading on.
    int RowsAtHand() const;
    /// Returns whether there is a table with columns.
    bool IsLoaded() const { return !columns_.empty(); }

    /// Shows only the rows with `text` in any visible column, ignoring case; all rows for empty
    /// text. In a long list the first matches are shown immediately and the others join them as
    /// they are found, until NarrowingEnded.
    void Narrow(const QString& text, int firstColumn);
    bool IsNarrowing() const { return search_.has_value(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    platform::Value CellValue(int row, int column) const;
    QString CellText(int row, int column) const;
    QString Caption(int column) const;
    platform::FieldType TypeOf(int column) const;

    void SetFormat(int column, ColumnFormat format);
    /// Sets the background of one cell; does nothing for a cell outside the grid.
    void SetColor(int column, int row, QColor color);
    void SetColorRule(int column, ColorRule rule);
    /// Sets the background of whole rows, below the colours of cells.
    void SetRowRule(RowRule rule) { rowRule_ = std::move(rule); }
    void SetBoldHeader(bool bold);

  Q_SIGNALS:
    /// Emitted when all matching rows have been found.
    void NarrowingEnded();
    void AllRead();

  private:
    struct Column {
        QString caption;
        platform::FieldType type = platform::FieldType::Text;
        ColumnFormat format;
        ColorRule color;
    };

    std::int64_t Source(int row) const;
    RowSearch MakeSearch(const QString& text, int firstColumn) const;
    std::vector<std::int32_t> SearchOn();
    void SearchSlice();
    void ReadSlice();
    QString SourceText(std::int64_t source, std::size_t column) const;
    std::optional<QColor> ColorOf(const QModelIndex& index) const;

    std::unique_ptr<core::Table> table_;
    std::int64_t rowCount_ = 0;
    std::int64_t atHand_ = 0;
    QTimer nextRead_;
    std::vector<Column> columns_;
    std::unordered_map<std::int64_t, QColor> colors_;
    QString narrowed_;
    std::vector<std::int32_t> shown_; ///< while narrowed, the rows that are left
    std::optional<RowSearch> search_; ///< while rows are still being searched
    std::int32_t nextSearched_ = 0;
    QTimer nextSlice_;
    RowRule rowRule_;
    bool boldHeader_ = true;
};

} // namespace core::grid
