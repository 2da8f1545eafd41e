#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/grid/LedgerList.h"
#include "leases/RentCodes.h"

namespace leases::screens {

/// A line of the list: one charge or credit of the ledger.
struct ChargeLine {
    std::int32_t idRentLog = 0;
    RentFlags flags = RentFlags::Ordinary;
    platform::Date date;
    std::string category;
    std::string description;
    platform::Currency amount;
    std::optional<platform::Currency> openTotal;
    bool ticked = false;
};

/// Which charges a command selects together.
enum class ChargePick { All, Rent, Other };

/// Charges of a lease to look at and choose from.
class ChargeList : public core::grid::LedgerList {
    Q_OBJECT

  public:
    explicit ChargeList(QWidget* parent = nullptr);

    /// Sets the captions of the columns, in the order date, category, description, amount, running
    /// total, and the share of the width that each takes; a column without a share is hidden.
    void SetColumns(const QStringList& captions, const std::vector<int>& percents);
    /// Shows these lines. The current row stays current.
    void ShowLines(const std::vector<ChargeLine>& lines);

    std::vector<std::int32_t> TickedIds() const;
    /// All rows, from the top.
    std::vector<std::int32_t> ShownIds() const;
    /// Moves the row in focus up (-1) or down (1) by one place; false at the edge.
    bool MoveCurrent(int step);

    /// Selects exactly these rows.
    void Select(ChargePick pick);
    /// Ticks exactly these rows.
    void Tick(ChargePick pick);

  Q_SIGNALS:
    void TicksChanged();
    void SelectionMoved();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    static bool IsPicked(const QTreeWidgetItem& row, ChargePick pick);
    void ShareWidth();

    std::vector<int> percents_;
};

} // namespace leases::screens
