#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"
#include "records/DepositTemplates.h"

namespace Ui {
class frmDeposit;
}

namespace records::screens {

/// A deposit that new leases are charged: all of them, those of a building or those of a unit.
class frmDeposit : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmDeposit(QWidget* parent = nullptr);
    ~frmDeposit() override;

    /// Opens a template, or a new one that is proposed for `scope` of `place`.
    void Setup(std::int32_t id, DepositScope scope, const DepositPlace& place);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(std::int16_t kind) override;

  private:
    void ShowScope(DepositScope scope);
    void OfferPlaces();
    DepositScope Scope() const;

    std::unique_ptr<Ui::frmDeposit> ui_;
};

/// Opens a template (0 for a new one) unless it is open, which brings it to the front.
void OpenDeposit(std::int32_t id, DepositScope scope, const DepositPlace& place);

} // namespace records::screens
