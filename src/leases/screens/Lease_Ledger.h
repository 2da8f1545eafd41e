#pragma once

#include <QWidget>
#include <cstdint>

#include "core/NotifyAll.h"
#include "leases/Ledger.h"

class QLabel;
class QPushButton;
class QTabBar;

namespace leases::screens {

class ChargeList;

/// The ledger of a lease on its screen: a tab a sort of rows, the running total of what is open,
/// and the commands on them. It follows every change of the ledger, wherever it was made.
class Lease_Ledger : public QWidget {
    Q_OBJECT

  public:
    explicit Lease_Ledger(QWidget* parent = nullptr);

    /// Shows the ledger of a lease; nothing can be done with that of a new one (0).
    void Load(std::int32_t idLease);
    /// The tabs of a subsidy and of a purchase option, which not every lease has.
    void OfferTabs(bool subsidy, bool option);
    std::int32_t LeaseId() const { return idLease_; }

  Q_SIGNALS:
    /// The ledger was changed, and with it the balances.
    void Changed();

  private:
    void MakeButtons();
    void Connect();
    QPushButton* MakeButton(const QString& text, const QString& hint, const char* name,
                            const char* icon = nullptr);
    const LedgerTab& Tab() const;
    void ShowRows();
    void ShowTotal(const std::vector<LedgerRow>& rows);
    void ShowAvailable();

    void Add();
    void Edit(std::int32_t id);
    void Delete();
    void Pay();
    void OpenDeposit(const books::Transaction& proposed, std::string_view category);
    void Hear(std::int16_t kind);

    std::int32_t idLease_ = 0;
    QTabBar* tabs_;
    ChargeList* list_;
    QLabel* total_;
    QPushButton* add_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* select_ = nullptr;
    QPushButton* rent_ = nullptr;
    QPushButton* refund_ = nullptr;
    QPushButton* charge_ = nullptr;
    core::NotifyToken token_;
};

} // namespace leases::screens
