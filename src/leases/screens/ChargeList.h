#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <optional>
#include <vector>

#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

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

/// Charges to look at and choose from; several can be selected, and with ticks each has a check
/// box. A click on a caption sorts by it.
class ChargeList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit ChargeList(QWidget* parent = nullptr);

    /// What the columns are called, and how much of the width each takes; one without a share is
    /// hidden. In the order date, category, description, amount, running total.
    void SetColumns(const QStringList& captions, const std::vector<int>& percents);
    void SetTicks(bool ticks) { ticks_ = ticks; }
    /// The row that is current stays so.
    void ShowLines(const std::vector<ChargeLine>& lines);

    /// The selected rows, or else the current one.
    std::vector<std::int32_t> SelectedIds() const;
    /// The row in focus, or else the first selected one; 0 without one.
    std::int32_t CurrentId() const;
    std::vector<std::int32_t> TickedIds() const;

    /// Selects exactly these rows.
    void Select(ChargePick pick);
    /// Ticks exactly these rows.
    void Tick(ChargePick pick);

  Q_SIGNALS:
    void TicksChanged();
    void SelectionMoved();
    /// A double click or Enter on a row.
    void RowChosen(std::int32_t id);
    void DeleteAsked();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SortBy(int column);
    void ShareWidth();

    std::vector<int> percents_;
    bool ticks_ = false;
    bool filling_ = false;
    int sortedBy_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace leases::screens
