#pragma once

#include <memory>

#include "core/forms/EntryForm.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace Ui {
class frmMortgageAdjust;
}

namespace mortgages::screens {

/// Asks for a new rate of a mortgage, or for the balance that its lender states. It changes nothing
/// itself: what was given is told.
class frmMortgageAdjust : public core::forms::EntryForm {
    Q_OBJECT

  public:
    explicit frmMortgageAdjust(QWidget* parent = nullptr);
    ~frmMortgageAdjust() override;

    // Rates are percent here.
    void SetupInt(int period, double rate);
    void SetupBalance(platform::Currency balance, platform::Date nextDue, double rate);

  Q_SIGNALS:
    // Rates are fractions.
    void RateGiven(int period, double rate);
    void BalanceGiven(platform::Date day, platform::Currency balance, double rate);

  protected:
    void Store() override;
    std::vector<std::string> Errors() override;

  private:
    std::unique_ptr<Ui::frmMortgageAdjust> ui_;
    bool ofBalance_ = false;
    platform::Currency oldBalance_;
};

} // namespace mortgages::screens
