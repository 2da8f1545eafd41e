#include "records/screens/frmOwnerLink.h"

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/binding/ComboList.h"
#include "platform/database/Connection.h"
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

/// The owner and the marks of the building's other owners are saved in one unit of work.
void frmOwnerLink::Store() {
    platform::UnitOfWork unit(core::App().Connection);
    const auto before = platform::AsOr0<std::int32_t>(
        core::ReadValue("SELECT IdBuilding FROM OwnerLink WHERE IdOwnerLink = ?", {Id()}));
    RecordForm::Store();
    mark_ = SettlePrimary(GetSelectedId(*ui_->cboBuilding), before, Id(),
                          ui_->chkIsPrimary->isChecked() ? PrimaryMark::Yes : PrimaryMark::No);
    unit.Commit();
}

void frmOwnerLink::AfterSave() {
    TellOwnership(GetSelectedId(*ui_->cboBuilding), mark_);
    mark_ = PrimaryMark::No;
}

void frmOwnerLink::Refresh(std::int16_t kind) {
    if (kind == core::kBuilding) FillList(core::kBuilding, *ui_->cboBuilding);
    if (kind == core::kAccount) FillList(core::kBuildingOwnerAccount, *ui_->cboOwner);
}

} // namespace records::screens
