#pragma once

#include <QAbstractTableModel>
#include <optional>

#include "mortgages/AmortGrid.h"

namespace mortgages::screens {

/// A loan's schedule for a table view; cells are formatted when they are painted.
class AmortModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows a copy of the loan with its schedule.
    void Show(const clsMortgage& mortgage, const AmortView& view);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::optional<clsMortgage> mortgage_;
    std::optional<AmortGrid> grid_;
};

} // namespace mortgages::screens
