#pragma once

#include <memory>

#include "core/forms/EntryForm.h"
#include "mortgages/MortgageAdjust.h"

namespace Ui {
class frmMortgageAdjust;
}

namespace mortgages::screens {

/// Asks for one adjustment of a mortgage: a rate or extra principal from a period on, the balance
/// stated by the lender, or an entry to remove. It changes nothing itself.
class frmMortgageAdjust : public core::forms::EntryForm {
    Q_OBJECT

  public:
    explicit frmMortgageAdjust(QWidget* parent = nullptr);
    ~frmMortgageAdjust() override;

    // Each function opens the screen with one of its frames, for the loan as it is shown.
    void SetupInt(const clsMortgage& loan);
    void SetupBalance(const clsMortgage& loan);
    void SetupTerms(const clsMortgage& loan);
    void SetupTakeBack(const clsMortgage& loan);

  Q_SIGNALS:
    void Given(const Adjustment& adjustment);

  protected:
    void Store() override;
    std::vector<std::string> Errors() override;

  private:
    enum class Mode { Rate, Balance, Terms, TakeBack };

    void Prepare(Mode mode, const clsMortgage& loan);
    Adjustment Entered() const;

    std::unique_ptr<Ui::frmMortgageAdjust> ui_;
    Mode mode_ = Mode::Rate;
    clsMortgage loan_;
};

} // namespace mortgages::screens
