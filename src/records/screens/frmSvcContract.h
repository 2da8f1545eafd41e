#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmSvcContract;
}

namespace records::screens {

/// A service contract on a building, or on one of its appliances.
class frmSvcContract : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmSvcContract(QWidget* parent = nullptr);
    ~frmSvcContract() override;

    /// Opens a contract, or a new one for a building and, unless `idAppliance` is 0, its appliance.
    void Setup(std::int32_t id, std::int32_t idBuilding, std::int32_t idAppliance);

  protected:
    void FillListsFor(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillVendors();
    void FillAppliances();
    void FillAppliances(std::int32_t idBuilding);

    std::unique_ptr<Ui::frmSvcContract> ui_;
};

} // namespace records::screens
