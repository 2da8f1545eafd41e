#pragma once

#include <cstdint>
#include <vector>

#include "core/grid/LedgerList.h"

namespace leases::screens {

/// Which charges a command selects together.
enum class ChargePick { All, Rent, Other };

/// Charges of a lease to look at and choose from.
class ChargeList : public core::grid::LedgerList {
    Q_OBJECT

  public:
    explicit ChargeList(QWidget* parent = nullptr);

    std::vector<std::int32_t> TickedIds() const;
    /// Returns all rows, from the top.
    std::vector<std::int32_t> ShownIds() const;
    /// Moves the row in focus up (-1) or down (1) by one place; returns false at either end.
    bool MoveCurrent(int step);

    /// Selects exactly these rows.
    void Select(ChargePick pick);
    /// Ticks exactly these rows.
    void Tick(ChargePick pick);

  Q_SIGNALS:
    void TicksChanged();
    void SelectionMoved();

  private:
    static bool IsPicked(const QTreeWidgetItem& row, ChargePick pick);
};

} // namespace leases::screens
