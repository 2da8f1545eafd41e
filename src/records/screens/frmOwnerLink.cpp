#include "records/screens/frmOwnerLink.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "platform/database/FieldReadings.h"
#include "platform/qt/Text.h"
#include "ui_frmOwnerLink.h"

namespace records::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;

frmOwnerLink::frmOwnerLink(QWidget* parent)
    : RecordForm({core::kOwner, "OwnerLink", "IdOwnerLink"}, parent, core::FormSizing::Fixed),
      ui_(std::make_unique<Ui::frmOwnerLink>()) {
    ui_->setupUi(this);
    Wire();
}

frmOwnerLink::~frmOwnerLink() = default;

void frmOwnerLink::Setup(std::int32_t id, std::int32_t parentBuilding) {
    OpenRecord(id, [this, parentBuilding] {
        FillList(core::kBuilding, *ui_->cboBuilding, {.selectedId = parentBuilding});
        FillList(core::kBuildingOwnerAccount, *ui_->cboOwner);
    });
}

void frmOwnerLink::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Owner")
                             : tr("Owner: %1").arg(ui_->cboOwner->currentText()));
}

std::vector<std::string> frmOwnerLink::Errors() {
    return OwnerErrors({Id(), GetSelectedId(*ui_->cboBuilding), GetSelectedId(*ui_->cboOwner),
                        platform::qt::FromScreen(ui_->txtPctOwned->text())});
}

void frmOwnerLink::WriteRow(platform::Recordset& row) {
    buildingBefore_ = WritesNewRow() ? 0 : platform::IdOf(row["IdBuilding"]);
    RecordForm::WriteRow(row);
}

/// Stores the marks of the building's other owners.
void frmOwnerLink::StoreRest() {
    mark_ = SettlePrimary(GetSelectedId(*ui_->cboBuilding), buildingBefore_, Id(),
                          ui_->chkIsPrimary->isChecked() ? PrimaryMark::Yes : PrimaryMark::No);
}

void frmOwnerLink::AfterSave() {
    TellOwnership(GetSelectedId(*ui_->cboBuilding), mark_);
    mark_ = PrimaryMark::No;
}

void frmOwnerLink::Refresh(core::RecordKind kind) {
    if (kind == core::kBuilding) FillList(core::kBuilding, *ui_->cboBuilding);
    if (kind == core::kAccount) FillList(core::kBuildingOwnerAccount, *ui_->cboOwner);
}

} // namespace records::screens
