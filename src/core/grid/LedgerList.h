#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace core::grid {

/// Rows of a ledger to look at and choose from; several can be selected, and with ticks each has a
/// check box. They keep their given order until a click on a caption sorts them.
class LedgerList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit LedgerList(QWidget* parent = nullptr);

    void SetTicks(bool ticks) { ticks_ = ticks; }

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
    /// The first item data role free for derived lists.
    static constexpr int kOwnRole = Qt::UserRole + 3;

    /// Creates a row that isn't shown yet, with its date in the first column.
    QTreeWidgetItem* MakeRow(std::int32_t id, int flags, platform::Date date, bool ticked) const;
    static void SetMoney(QTreeWidgetItem& row, int column, platform::Currency amount);
    static std::int32_t IdOf(const QTreeWidgetItem& row);
    static int FlagsOf(const QTreeWidgetItem& row);

    /// Replaces the shown rows. The current row stays current.
    void ShowRows(const QList<QTreeWidgetItem*>& rows);
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
    void SortBy(int column);

    bool ticks_ = false;
    bool filling_ = false;
    int sortedBy_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace core::grid
