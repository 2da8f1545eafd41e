#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <vector>

#include "core/Table.h"

namespace core::grid {

/// Rows of a ledger to look at and choose from; several can be selected, and with ticks each has a
/// check box. They keep their given order until a click on a caption sorts them.
class LedgerList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit LedgerList(QWidget* parent = nullptr);

    void SetTicks(bool ticks) { ticks_ = ticks; }
    /// Shows the rows of a table: its first column has their ids, the second their flags, and the
    /// third their dates, with the ticks beside them. The descriptions take the width that the
    /// other columns leave. The current row stays current.
    void ShowTable(const core::Table& table, const std::vector<bool>& ticks = {});
    /// Sets only the ticks, in the order of the table.
    void ShowTicks(const std::vector<bool>& ticks);

    /// Returns the selected rows from top to bottom.
    std::vector<std::int32_t> SelectedIds() const;
    /// Returns the current row, or else the first selected one; 0 if there is neither.
    std::int32_t CurrentId() const;

  Q_SIGNALS:
    /// Emitted by a double click, F2 or Enter on a row. In a list with ticks Enter submits the form
    /// instead, and Space ticks the row.
    void RowChosen(std::int32_t id);
    void DeleteAsked();

  protected:
    static std::int32_t IdOf(const QTreeWidgetItem& row);
    static std::int16_t FlagsOf(const QTreeWidgetItem& row);
    /// Returns the place of the row in the table, counted from 0.
    static std::size_t PlaceOf(const QTreeWidgetItem& row);

    /// Runs `work`, whose changes to the items don't count as the user's.
    template <class Work>
    void Fill(Work&& work) {
        filling_ = true;
        work();
        filling_ = false;
    }
    bool Filling() const { return filling_; }

    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ShowCaptions(const std::vector<core::TableColumn>& columns);
    void ShowRows(const QList<QTreeWidgetItem*>& rows);
    void SortBy(int column);

    bool ticks_ = false;
    bool filling_ = false;
    int sortedBy_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace core::grid
