#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace core::grid {

/// Rows of a ledger to look at and choose from; several can be selected, and with ticks each has a
/// check box. They stand as they were given until a click on a caption sorts by it.
class LedgerList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit LedgerList(QWidget* parent = nullptr);

    void SetTicks(bool ticks) { ticks_ = ticks; }

    /// The selected rows from the top, or else the current one.
    std::vector<std::int32_t> SelectedIds() const;
    /// The row in focus, or else the first selected one; 0 without one.
    std::int32_t CurrentId() const;

  Q_SIGNALS:
    /// A double click, F2 or Enter on a row. With ticks Enter is the form's, which it submits, and
    /// Space ticks the row.
    void RowChosen(std::int32_t id);
    void DeleteAsked();

  protected:
    /// The first role that a derived list may keep things under.
    static constexpr int kOwnRole = Qt::UserRole + 3;

    /// A row yet to be shown: its day stands in the first column.
    QTreeWidgetItem* MakeRow(std::int32_t id, int flags, platform::Date date, bool ticked) const;
    static void SetMoney(QTreeWidgetItem& row, int column, platform::Currency amount);
    static std::int32_t IdOf(const QTreeWidgetItem& row);
    static int FlagsOf(const QTreeWidgetItem& row);

    /// Shows these rows alone. The one that is current stays so.
    void ShowRows(const QList<QTreeWidgetItem*>& rows);
    /// Changes made by `work` are not the person's.
    template <class Work>
    void Fill(Work&& work) {
        filling_ = true;
        work();
        filling_ = false;
    }
    bool Filling() const { return filling_; }

    void keyPressEvent(QKeyEvent* event) override;

  private:
    void SortBy(int column);

    bool ticks_ = false;
    bool filling_ = false;
    int sortedBy_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace core::grid
