#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace Ui {
class frmTenant;
class frmTenantPerson;
class frmTenantIdentity;
class frmTenantHistory;
} // namespace Ui

namespace books::screens {
class General_Ledger;
}

namespace records::screens {

class Contacts;
class RelatedDBs;

/// A tenant or an applicant.
class frmTenant : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmTenant(QWidget* parent = nullptr);
    ~frmTenant() override;

    void Setup(std::int32_t id);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void StoreRest() override;
    void AfterSave() override;

  private:
    void MakePanels();

    std::unique_ptr<Ui::frmTenant> ui_;
    std::unique_ptr<Ui::frmTenantPerson> person_;
    std::unique_ptr<Ui::frmTenantIdentity> identity_;
    std::unique_ptr<Ui::frmTenantHistory> history_;
    RelatedDBs* incidents_ = nullptr;
    Contacts* contacts_ = nullptr;
    books::screens::General_Ledger* ledger_ = nullptr;
};

} // namespace records::screens
