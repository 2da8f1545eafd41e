#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "records/DepositTemplates.h"

namespace Ui {
class frmDeposit;
}

namespace records::screens {

/// A deposit template: for all new leases, or for the leases of a building or a unit.
class frmDeposit : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmDeposit(QWidget* parent = nullptr);
    ~frmDeposit() override;

    /// Opens a template, or a new one proposed for `scope` of `place`.
    void Setup(std::int32_t id, DepositScope scope, const DepositPlace& place);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void ShowScope(DepositScope scope);
    void OfferPlaces();
    DepositScope Scope() const;

    std::unique_ptr<Ui::frmDeposit> ui_;
};

/// Opens a template (0 for a new one), or brings its open screen to the front.
void OpenDeposit(std::int32_t id, DepositScope scope, const DepositPlace& place);

} // namespace records::screens
