#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/grid/LedgerList.h"
#include "leases/RentCodes.h"

namespace leases::screens {

/// One charge or credit of the ledger as a list shows it.
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

/// Which charges a command takes together.
enum class ChargePick { All, Rent, Other };

/// Charges of a lease to look at and choose from.
class ChargeList : public core::grid::LedgerList {
    Q_OBJECT

  public:
    explicit ChargeList(QWidget* parent = nullptr);

    /// What the columns are called, and how much of the width each takes; one without a share is
    /// hidden. In the order date, category, description, amount, running total.
    void SetColumns(const QStringList& captions, const std::vector<int>& percents);
    /// The row that is current stays so.
    void ShowLines(const std::vector<ChargeLine>& lines);

    std::vector<std::int32_t> TickedIds() const;

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
