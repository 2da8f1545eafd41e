#pragma once

#include <memory>

#include "core/forms/frmWizard.h"
#include "mortgages/MortgageWizard.h"

class QCheckBox;

namespace Ui {
class frmMortgageWizardCurrent;
class frmMortgageWizardDetails;
class frmMortgageWizardLender;
class frmMortgageWizardTerms;
} // namespace Ui

namespace mortgages::screens {

/// Adds a mortgage that may be running already, from the figures on its lender's statement.
class frmMortgageWizard : public core::forms::frmWizard {
    Q_OBJECT

  public:
    explicit frmMortgageWizard(QWidget* parent = nullptr);
    ~frmMortgageWizard() override;

    void Setup();

  protected:
    std::vector<std::string> StepErrors(int step) override;
    void Finish() override;

  private:
    void MakeSteps();
    void ShowAvailable();
    WizardEntries Entered() const;

    std::unique_ptr<Ui::frmMortgageWizardLender> lender_;
    std::unique_ptr<Ui::frmMortgageWizardTerms> terms_;
    std::unique_ptr<Ui::frmMortgageWizardDetails> details_;
    std::unique_ptr<Ui::frmMortgageWizardCurrent> current_;
    QCheckBox* chkOpenMtg_ = nullptr;
};

} // namespace mortgages::screens
