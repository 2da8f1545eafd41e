#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "books/screens/PaymentForm.h"
#include "core/RecordKinds.h"
#include "leases/AmountPayment.h"
#include "leases/PaymentTicks.h"
#include "leases/RentPayment.h"

class QAction;
class QMenu;

namespace Ui {
class frmRentPayment;
}

namespace leases::screens {

class frmRentSplit;

/// Takes a payment against the charges of a lease, or edits a stored one.
class frmRentPayment : public books::screens::PaymentForm {
    Q_OBJECT

  public:
    explicit frmRentPayment(QWidget* parent = nullptr);
    ~frmRentPayment() override;

    /// Opens a stored payment, or a new one (0) for the open charges of a lease and class. `update`
    /// says whether the lease is brought up to date afterwards.
    void Setup(std::int32_t idTransaction, std::int32_t idLease, TransactionClass rentClass,
               LeaseUpdate update);

  protected:
    void PostPayment() override;
    void RereadCharges() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;
    void ShowPayment() override;
    void FillParties() override;

  private:
    QMenu* MakePaymentMenu();
    void FillReceipts();
    void AddChargeItems();
    void Connect();
    void FillPayers();
    void FillAccounts();
    void ShowCharges();
    void ListCharges();
    void ReadTicks();
    void TicksChanged();
    void ChargeSplit(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts);
    void RestoreTicks();
    void ShowTotal();
    AmountPayment ReadAmount();
    void ShowAmount();
    void MoveCharge(int step);
    void ReturnPayment();
    void ShowAvailable();

    void AddCharge();
    void EditCharge(std::int32_t id);
    void SplitCharge();
    void RemoveCharges();

    std::unique_ptr<Ui::frmRentPayment> ui_;
    QMenu* receiptMenu_ = nullptr;
    QAction* return_ = nullptr;
    RentPayment payment_;
    PaymentTicks ticks_;
    QPointer<frmRentSplit> split_; ///< the split that is open
    /// Whether reading the charges again has changed the user's ticks.
    bool tickedAgain_ = false;
    /// The charges as the user has ordered them, empty while they are in the order of their days.
    std::vector<std::int32_t> order_;
    LeaseUpdate update_ = LeaseUpdate::Yes;
};

} // namespace leases::screens
