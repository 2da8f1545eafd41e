#pragma once

#include <QTableView>
#include <cstdint>
#include <vector>

#include "core/grid/GridModel.h"

namespace core::grid {

/// The colours of a status that asks for attention, and of one that is worse. They are the same in
/// light and dark windows.
inline constexpr QRgb kPaleYellow = 0xFFFFFF80;
inline constexpr QRgb kPaleRed = 0xFFFF8080;

/// How columns get their widths, numbered as the preference stores it.
enum class Sizing {
    Manual = 0,  ///< as the person left them
    FitGrid = 1, ///< all columns share the grid's width
    FitText = 2, ///< each as wide as its widest text
};

/// A table of a row set's rows, to look at and choose from. Its first column usually holds the
/// records' ids and is hidden. Its property "tag", or else its object name, names what is stored
/// about it.
class Grid : public QTableView {
    Q_OBJECT

  public:
    explicit Grid(QWidget* parent = nullptr);

    GridModel& Model() { return model_; }
    const GridModel& Model() const { return model_; }

    /// The number in the current row's first column; 0 without a row.
    std::int32_t SelectedId() const;
    /// Makes the row with this id current; false when there is none.
    bool SelectId(std::int32_t id);

    /// What an empty grid says instead.
    void SetEmptyText(const QString& text);
    const QString& EmptyText() const { return emptyText_; }
    /// The selected rows without the hidden columns, cells parted by tabs, a line each.
    QString SelectedText() const;
    void CopySelection() const;

    /// The widths that the texts want, with their margins; many rows are judged by samples.
    std::vector<int> WantedWidths() const;
    void Fit(int firstColumn, Sizing sizing);
    QString StoreName() const;

  Q_SIGNALS:
    void SelectionMoved();
    /// A double click or Enter on a row.
    void RowChosen(std::int32_t id);
    void HeaderClicked(const QString& caption);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void ShareWidth();

    GridModel model_;
    QString emptyText_;
    std::vector<int> wanted_; ///< kept while the columns share the width
    int firstColumn_ = 0;
    Sizing sizing_ = Sizing::Manual;
    bool sharing_ = false;
};

/// The standard look: whole rows, no resizing before something is loaded.
void SetupGrid(Grid& grid);

enum class HeaderFont { Plain, Bold };

/// Shows the rows of an open row set, which the grid keeps, and answers the first column's type.
/// Columns may be resized from now on; a narrowed view shows all its rows again.
platform::FieldType LoadGrid(Grid& grid, platform::Recordset rows,
                             HeaderFont header = HeaderFont::Bold);

/// The background of one cell; a cell outside the grid is passed over.
void SetCellColor(Grid& grid, int column, int row, QColor color);

/// Shows a column by another format than its type's, or as Yes and No.
void FormatColumn(Grid& grid, int column, std::string_view pattern);
void FormatColumnYesNo(Grid& grid, int column);

/// Hides the columns before `firstColumn` and gives the others their widths; nothing for
/// Sizing::Manual or an empty grid. FitGrid stays in force when the grid changes its size.
void AutoSizeGrid(Grid& grid, int firstColumn, Sizing sizing);
/// The same by counting characters.
void AutoSizeByLength(Grid& grid, int firstColumn);

/// Restores the widths stored under the grid's name, if there is one for each column.
void LoadColumnWidths(Grid& grid);
void SaveColumnWidths(const Grid& grid);

} // namespace core::grid
