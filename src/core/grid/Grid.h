#pragma once

#include <QTableView>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "core/grid/GridModel.h"
#include "platform/registry/Registry.h"

namespace core::grid {

/// The colours of a status that needs attention, and of a worse one. They are the same in light and
/// dark windows.
inline constexpr QRgb kPaleYellow = 0xFFFFFF80;
inline constexpr QRgb kPaleRed = 0xFFFF8080;

/// How columns get their widths, with the values that the preference stores.
enum class Sizing {
    Manual = 0,  ///< as the user left them
    FitGrid = 1, ///< all columns share the grid's width
    FitText = 2, ///< each as wide as its widest text
    FillGrid,    ///< the same, and the columns share the rest of the grid's width
};

/// A table for reading and choosing the rows of a row set. Its first column usually holds the
/// records' ids and is hidden. Its settings are stored under its property "tag", or else under its
/// object name.
class Grid : public QTableView {
    Q_OBJECT

  public:
    explicit Grid(QWidget* parent = nullptr);

    GridModel& Model() { return model_; }
    const GridModel& Model() const { return model_; }

    /// Returns the number in the first column of the selected row; 0 unless exactly one row is
    /// selected.
    std::int32_t SelectedId() const;
    int SelectedCount() const;
    /// Returns the numbers in the first column of the selected rows, from top to bottom, without
    /// empty cells.
    std::vector<std::int32_t> SelectedIds() const;
    /// Selects the row with this id; returns false if there is none.
    bool SelectId(std::int32_t id);
    /// Selects no row. The arrow keys go on from `row`, or from the last row if there are fewer.
    void SelectNone(int row);

    /// Sets the text that an empty grid shows.
    void SetEmptyText(const QString& text);
    const QString& EmptyText() const { return emptyText_; }
    /// Returns the selected rows without the hidden columns: a line per row, cells separated by
    /// tabs.
    QString SelectedText() const;
    void CopySelection() const;

    /// Returns the widths of the texts with their margins, measured on samples if there are many
    /// rows.
    std::vector<int> WantedWidths() const;
    void Fit(int firstColumn, Sizing sizing);
    /// Restores the widths of the columns that the user has resized.
    void ApplyOwnWidths();
    /// Forgets the user's widths if other columns are shown now.
    void ColumnsLoaded();
    /// Sets widths on the program's behalf, not the user's; a width of 0 hides the column.
    void SetWidths(const std::vector<int>& widths, int firstColumn);
    /// Returns whether the grid was ever visible. Widths of a grid that wasn't are meaningless.
    bool WasSeen() const { return wasSeen_; }
    QString StoreName() const;

  Q_SIGNALS:
    /// Emitted when the selection changes.
    void SelectionMoved();
    /// Emitted by a double click or Enter if exactly one row is selected.
    void RowChosen(std::int32_t id);
    void HeaderClicked(const QString& caption);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

  private:
    int SelectedRow() const;
    std::int32_t IdInRow(int row) const;
    void ChooseRow();
    void ColumnResized(int column, int before, int now);
    void ShareWidth();
    std::vector<int> SharedWidths(int width) const;

    GridModel model_;
    QString emptyText_;
    std::vector<int> wanted_; ///< kept while the columns share the width
    int firstColumn_ = 0;
    Sizing sizing_ = Sizing::Manual;
    bool sharing_ = false;
    bool sizingColumns_ = false;
    bool wasSeen_ = false;
    QString columns_;              ///< the store name and the captions
    std::map<int, int> ownWidths_; ///< by column, of those that the user has resized
};

/// Sets the standard look: whole rows, no resizing before rows are loaded.
void SetupGrid(Grid& grid);

enum class HeaderFont { Plain, Bold };

/// Shows the rows of an open row set, which the grid takes over, and returns the first column's
/// type. Columns may be resized from now on; a filter is removed.
platform::FieldType LoadGrid(Grid& grid, platform::Recordset rows,
                             HeaderFont header = HeaderFont::Bold);
/// Does the same with any table.
platform::FieldType LoadGrid(Grid& grid, std::unique_ptr<core::Table> table,
                             HeaderFont header = HeaderFont::Bold);

/// Sets the background of one cell; ignores a cell outside the grid.
void SetCellColor(Grid& grid, int column, int row, QColor color);

/// Shows a column by another format than its type's, or as Yes and No.
void FormatColumn(Grid& grid, int column, std::string_view pattern);
void FormatColumnYesNo(Grid& grid, int column);

/// Hides the columns before `firstColumn` and sizes the others; does nothing for Sizing::Manual or
/// an empty grid. FitGrid stays in force when the grid changes its size. A column that the user has
/// resized keeps its width.
void AutoSizeGrid(Grid& grid, int firstColumn, Sizing sizing);
/// Does the same by counting characters.
void AutoSizeByLength(Grid& grid, int firstColumn);

/// Restores the widths stored under the grid's name, if there is one for each column.
void LoadColumnWidths(Grid& grid);
/// Stores the widths; does nothing if the grid was never visible or has no columns.
void SaveColumnWidths(const Grid& grid);
/// Returns what SaveColumnWidths would store; nothing if it wouldn't.
std::optional<platform::RegistryText> ColumnWidthsText(const Grid& grid);

} // namespace core::grid
