#include "records/screens/frmSvcContract.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "platform/database/FieldReadings.h"
#include "records/SvcContractRules.h"
#include "ui_frmSvcContract.h"

namespace records::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;

frmSvcContract::frmSvcContract(QWidget* parent)
    : RecordForm({core::kSvcContract, "SvcContract", "IdSvcContract"}, parent),
      ui_(std::make_unique<Ui::frmSvcContract>()) {
    ui_->setupUi(this);
    Wire();
    connect(ui_->cboBuilding, &QComboBox::currentIndexChanged, this,
            [this] { core::forms::Guarded([this] { FillAppliances(); }); });
}

frmSvcContract::~frmSvcContract() = default;

void frmSvcContract::Setup(std::int32_t id, std::int32_t idBuilding, std::int32_t idAppliance) {
    OpenRecord(
        id,
        [this, idBuilding] {
            core::binding::FillFromCommaList(*ui_->cboTermType, kContractPeriods);
            core::binding::FillFromCommaList(*ui_->cboBillTermType, kContractPeriods);
            core::binding::FillFromCommaList(*ui_->cboBillType, kBillTypes);
            FillList(core::kBuilding, *ui_->cboBuilding,
                     {.selectedId = idBuilding, .addNone = true});
            FillVendors();
            FillAppliances();
        },
        [this, idAppliance] {
            for (QComboBox* const combo :
                 {ui_->cboTermType, ui_->cboBillTermType, ui_->cboBillType}) {
                combo->setCurrentIndex(0);
            }
            core::binding::SelectById(*ui_->cboAppliance, idAppliance);
        });
}

void frmSvcContract::FillVendors() {
    FillList(core::kVendorAccount, *ui_->cboVendor, {.addNone = true});
}

void frmSvcContract::FillAppliances() {
    FillAppliances(GetSelectedId(*ui_->cboBuilding));
}

void frmSvcContract::FillAppliances(std::int32_t idBuilding) {
    core::binding::FillListWith(core::kAppliance, idBuilding, *ui_->cboAppliance,
                                [idBuilding](core::ChoiceList& appliances) {
                                    FillAppliancesOfBuilding(appliances, idBuilding);
                                });
}

void frmSvcContract::FillListsFor(platform::Recordset& row) {
    FillAppliances(platform::IdOf(row["IdBuilding"]));
}

void frmSvcContract::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Service Contract")
                             : tr("Service Contract: %1").arg(ui_->cboBuilding->currentText()));
}

std::vector<std::string> frmSvcContract::Errors() {
    return SvcContractErrors(GetSelectedId(*ui_->cboBuilding), GetSelectedId(*ui_->cboVendor));
}

void frmSvcContract::Refresh(core::RecordKind kind) {
    switch (kind) {
        case core::kAccount:
            FillVendors();
            break;
        case core::kBuilding:
            FillList(core::kBuilding, *ui_->cboBuilding, {.addNone = true});
            FillAppliances();
            break;
        case core::kAppliance:
            FillAppliances();
            break;
        default:
            break;
    }
}

} // namespace records::screens
