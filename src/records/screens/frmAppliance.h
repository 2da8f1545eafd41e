#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace Ui {
class frmAppliance;
class frmApplianceDetails;
} // namespace Ui

namespace documents::screens {
class FileObjects;
}

namespace records::screens {

class RelatedDBs;

/// An appliance of a unit, with its service contracts.
class frmAppliance : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmAppliance(QWidget* parent = nullptr);
    ~frmAppliance() override;

    /// Opens an appliance, or a new one in `parentUnit`.
    void Setup(std::int32_t id, std::int32_t parentUnit);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void AfterSave() override;
    void Refresh(std::int16_t kind) override;

  private:
    std::unique_ptr<Ui::frmAppliance> ui_;
    std::unique_ptr<Ui::frmApplianceDetails> details_;
    RelatedDBs* contracts_ = nullptr;
    documents::screens::FileObjects* files_ = nullptr;
};

} // namespace records::screens
