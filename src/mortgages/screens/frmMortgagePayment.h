#pragma once

#include <cstdint>
#include <memory>

#include "books/screens/PaymentForm.h"
#include "core/RecordKinds.h"
#include "mortgages/MortgagePayment.h"

namespace Ui {
class frmMortgagePayment;
}

namespace mortgages::screens {

/// Pays charges of a mortgage, or edits a stored payment.
class frmMortgagePayment : public books::screens::PaymentForm {
    Q_OBJECT

  public:
    explicit frmMortgagePayment(QWidget* parent = nullptr);
    ~frmMortgagePayment() override;

    /// Opens a stored payment, or a new one (0) of the mortgage.
    void Setup(std::int32_t idTransaction, std::int32_t idMortgage);

  protected:
    void PostPayment() override;
    void RereadCharges() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

    void ShowPayment() override;
    void FillParties() override;

  private:
    void AddChargeItems();
    std::vector<bool> Ticks() const;
    void ShowTicks();
    void ShowTotal();
    void TickOne(std::size_t charge, bool on);
    void TickAll(ChargeChoice choice, bool on);
    void RemoveCharges();

    std::unique_ptr<Ui::frmMortgagePayment> ui_;
    MortgagePayment payment_;
};

} // namespace mortgages::screens
