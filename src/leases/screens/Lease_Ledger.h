#pragma once

#include <QWidget>
#include <cstdint>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/Ledger.h"

class QLabel;
class QPushButton;
class QTabBar;

namespace leases::screens {

class ChargeList;

/// The ledger of a lease on its screen: a tab per class of rows, the running total of the open
/// ones, and their commands. It follows every change of the ledger, wherever it was made.
class Lease_Ledger : public QWidget {
    Q_OBJECT

  public:
    explicit Lease_Ledger(QWidget* parent = nullptr);

    /// Shows the ledger of a lease; the panel is disabled for a new one (0).
    void Load(std::int32_t idLease);
    /// Shows or hides the tabs of subsidies and purchase options, which not every lease has.
    void OfferTabs(bool subsidy, bool option);
    std::int32_t LeaseId() const { return idLease_; }

  Q_SIGNALS:
    /// Emitted when the ledger, and with it the balances, has changed.
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
    void Return();
    void OpenDeposit(const books::Transaction& proposed, std::string_view category);
    void Hear(core::RecordKind kind);

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
    QPushButton* return_ = nullptr;
    core::NotifyToken token_;
};

} // namespace leases::screens
