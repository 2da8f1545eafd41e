#pragma once

#include <memory>

#include "core/RecordKinds.h"
#include "records/screens/FurnishingForm.h"

namespace Ui {
class frmAppliance;
class frmApplianceDetails;
} // namespace Ui

namespace records::screens {

class RelatedDBs;

/// An appliance of a unit, with its service contracts.
class frmAppliance : public FurnishingForm {
    Q_OBJECT

  public:
    explicit frmAppliance(QWidget* parent = nullptr);
    ~frmAppliance() override;

  protected:
    void FillLists() override;
    QString Name() const override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillVendors();

    std::unique_ptr<Ui::frmAppliance> ui_;
    std::unique_ptr<Ui::frmApplianceDetails> details_;
    RelatedDBs* contracts_ = nullptr;
};

} // namespace records::screens
