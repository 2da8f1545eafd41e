#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <vector>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace books::screens {

/// A list with boxes below it, from which rows are added, changed and deleted. A derived list has
/// the rows and says what of them shows where.
class PlanList : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

  Q_SIGNALS:
    /// The user changed a row, or which rows there are.
    void Changed();

  protected:
    /// `add` may be null. The column `wide` takes the room that the others leave.
    void Connect(QTreeWidget& list, int wide, QPushButton* add, QPushButton& update,
                 QPushButton& remove);
    /// Fills the list and selects a row, the nearest one if there are fewer.
    void ShowRows(int select);
    /// The selected row, -1 for none.
    int Row() const;

    virtual int Count() const = 0;
    virtual QStringList Cells(int row) const = 0;
    /// Whether a row is ticked; nothing for rows without a box.
    virtual std::optional<bool> IsTicked(int row) const = 0;
    virtual void Tick(int row, bool isOn) = 0;
    /// Shows a row in the boxes.
    virtual void ShowBoxes(int row) = 0;
    /// What is wrong with the boxes, a line each. The row of a new one is Count().
    virtual std::vector<std::string> Errors(int row) const = 0;
    /// Writes the boxes to a row; Count() adds one.
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

} // namespace books::screens
