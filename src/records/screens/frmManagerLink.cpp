#include "records/screens/frmManagerLink.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "records/ManagerLinkRules.h"
#include "ui_frmManagerLink.h"

namespace records::screens {

using core::binding::FillFromCommaList;
using core::binding::FillList;
using core::binding::GetSelectedId;

frmManagerLink::frmManagerLink(QWidget* parent)
    : RecordForm({core::kManager, "ManagerLink", "IdManagerLink"}, parent, core::FormSizing::Fixed),
      ui_(std::make_unique<Ui::frmManagerLink>()) {
    ui_->setupUi(this);
    Wire();
}

frmManagerLink::~frmManagerLink() = default;

void frmManagerLink::Setup(std::int32_t id, std::int32_t parentBuilding) {
    OpenRecord(
        id,
        [this, parentBuilding] {
            FillFromCommaList(*ui_->cboFeeType, kFeeTypes);
            FillFromCommaList(*ui_->cboTermType, kTermTypes);
            FillList(core::kBuilding, *ui_->cboBuilding, {.selectedId = parentBuilding});
            FillList(core::kBuildingManagerAccount, *ui_->cboManager);
        },
        [this] {
            ui_->cboFeeType->setCurrentIndex(0);
            ui_->cboTermType->setCurrentIndex(0);
        });
}

void frmManagerLink::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Manager")
                             : tr("Manager: %1").arg(ui_->cboManager->currentText()));
}

std::vector<std::string> frmManagerLink::Errors() {
    return ManagerErrors({Id(), GetSelectedId(*ui_->cboBuilding), GetSelectedId(*ui_->cboManager)});
}

void frmManagerLink::Refresh(core::RecordKind kind) {
    if (kind == core::kBuilding) FillList(core::kBuilding, *ui_->cboBuilding);
    if (kind == core::kAccount) FillList(core::kBuildingManagerAccount, *ui_->cboManager);
}

} // namespace records::screens
