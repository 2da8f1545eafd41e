#pragma once

#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/frmWizard.h"
#include "leases/LeaseWizard.h"

namespace Ui {
class frmLeaseWizardProperty;
class frmLeaseWizardSummary;
class frmLeaseWizardTenant;
class frmLeaseWizardTerms;
} // namespace Ui

namespace leases::screens {

/// Adds a lease in five steps, together with its property and tenant if they are new.
class frmLeaseWizard : public core::forms::frmWizard {
    Q_OBJECT

  public:
    explicit frmLeaseWizard(QWidget* parent = nullptr);
    ~frmLeaseWizard() override;

    void Setup();

  protected:
    std::vector<std::string> StepErrors(int step) override;
    void ShowStep(int step) override;
    bool Agreed() override;
    void Finish() override;
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void MakeSteps();
    void Connect();
    void ShowAvailable();
    void PropertyChosen();
    void LookUpZip();
    LeaseWizardEntry Entered() const;
    void ShowSummary();

    std::unique_ptr<Ui::frmLeaseWizardProperty> property_;
    std::unique_ptr<Ui::frmLeaseWizardTenant> tenant_;
    std::unique_ptr<Ui::frmLeaseWizardTerms> terms_;
    std::unique_ptr<Ui::frmLeaseWizardSummary> summary_;
    platform::Date firstDue_;
};

} // namespace leases::screens
