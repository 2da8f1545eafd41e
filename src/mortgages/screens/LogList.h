#pragma once

#include "core/grid/LedgerList.h"

namespace mortgages::screens {

/// Rows of a mortgage's log to look at and choose from.
class LogList : public core::grid::LedgerList {
    Q_OBJECT

  public:
    explicit LogList(QWidget* parent = nullptr);

    /// Selects exactly the base payments, or exactly the other rows.
    void SelectBasePayments(bool basePayments);

  Q_SIGNALS:
    /// Emitted when the user ticks or unticks the row at this place of the table.
    void Ticked(std::size_t place, bool on);
};

} // namespace mortgages::screens
