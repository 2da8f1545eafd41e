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

/// The colour of a cell by its value; nothing for a plain cell.
using ColorRule = std::function<std::optional<QColor>(const platform::Value&)>;

/// The rows of any table as text. A cell is formatted when it is shown, so a view of a million rows
/// costs what is shown of it.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit GridModel(QObject* parent = nullptr);

    /// Takes over a table; every column starts with the table's format. Null leaves nothing to
    /// show.
    void SetTable(std::unique_ptr<core::Table> table);
    /// The same with the rows of a row set, which may be closed.
    void SetRows(platform::Recordset rows);
    /// Reads the rows of a row set that is read as it is needed, some at a time while the person
    /// goes on, until AllRead. What is shown meanwhile is read at once.
    void ReadOn();
    /// How many rows show without being waited for.
    int RowsAtHand() const;
    /// Whether there is a table with columns.
    bool IsLoaded() const { return !columns_.empty(); }

    /// Shows only the rows that have `text` in any column but the hidden first ones, without regard
    /// to case; all rows for an empty text. In a long list the first rows found show at once and
    /// the others join them as they are found, until NarrowingEnded.
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
    /// Outside the grid nothing happens.
    void SetColor(int column, int row, QColor color);
    void SetColorRule(int column, ColorRule rule);
    void SetBoldHeader(bool bold);

  Q_SIGNALS:
    /// All rows that have the text are there.
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
    std::optional<RowSearch> search_; ///< while rows are still looked through
    std::int32_t nextSearched_ = 0;
    QTimer nextSlice_;
    bool boldHeader_ = true;
};

} // namespace core::grid
