#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "records/OwnerLinkRules.h"

namespace Ui {
class frmOwnerLink;
}

namespace records::screens {

/// One owner of a building.
class frmOwnerLink : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmOwnerLink(QWidget* parent = nullptr);
    ~frmOwnerLink() override;

    /// Opens an owner, or a new one for `parentBuilding`.
    void Setup(std::int32_t id, std::int32_t parentBuilding);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void WriteRow(platform::Recordset& row) override;
    void StoreRest() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;

  private:
    std::unique_ptr<Ui::frmOwnerLink> ui_;
    std::int32_t buildingBefore_ = 0;    ///< of the owner being saved; 0 for a new one
    PrimaryMark mark_ = PrimaryMark::No; ///< of the owner that was saved last
};

} // namespace records::screens
