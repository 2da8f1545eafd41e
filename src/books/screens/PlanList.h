#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <vector>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace books::screens {

/// A list with boxes below it, for adding, changing and deleting rows. A derived list holds the
/// rows and provides their texts.
class PlanList : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

  Q_SIGNALS:
    /// Emitted when the user changed, added or deleted a row.
    void Changed();

  protected:
    /// `add` may be null. The column `wide` takes the remaining width.
    void Connect(QTreeWidget& list, int wide, QPushButton* add, QPushButton& update,
                 QPushButton& remove);
    /// Fills the list and selects a row, the last one if there are fewer.
    void ShowRows(int select);
    /// Returns the selected row; -1 if no row is selected.
    int Row() const;

    virtual int Count() const = 0;
    virtual QStringList Cells(int row) const = 0;
    /// Returns whether a row is ticked; nothing for rows without a check box.
    virtual std::optional<bool> IsTicked(int row) const = 0;
    virtual void Tick(int row, bool isOn) = 0;
    /// Shows a row in the boxes.
    virtual void ShowBoxes(int row) = 0;
    /// Returns the errors in the boxes, a line each. For a new row, `row` is Count().
    virtual std::vector<std::string> Errors(int row) const = 0;
    /// Writes the contents of the boxes to a row; adds a new row if `row` is Count().
    virtual void Store(int row) = 0;
    virtual void Remove(int row) = 0;

  private:
    void StoreRow(int row);
    void RemoveRow();
    void Ticked(const QTreeWidgetItem& item);
    void SizeColumns();
    void ShowAvailable();

    QTreeWidget* list_ = nullptr;
    int wide_ = 0;
    QPushButton* update_ = nullptr;
    QPushButton* remove_ = nullptr;
    bool filling_ = false;
};

/// A list that holds its rows.
template <class Item>
class PlanRows : public PlanList {
  public:
    using PlanList::PlanList;

  protected:
    int Count() const override { return static_cast<int>(rows_.size()); }
    void Remove(int row) override { rows_.erase(rows_.begin() + row); }

    const std::vector<Item>& Rows() const { return rows_; }
    const Item& At(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
    Item& At(int row) { return rows_.at(static_cast<std::size_t>(row)); }
    /// Returns a row, a new one for Count().
    Item& AtOrNew(int row) { return row == Count() ? rows_.emplace_back() : At(row); }
    void SetRows(std::vector<Item> rows) {
        rows_ = std::move(rows);
        ShowRows(0);
    }

  private:
    std::vector<Item> rows_;
};

} // namespace books::screens
