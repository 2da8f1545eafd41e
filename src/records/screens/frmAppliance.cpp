#include "records/screens/frmAppliance.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "documents/screens/FileObjects.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "records/screens/Panels.h"
#include "records/screens/PickFields.h"
#include "records/screens/RelatedDBs.h"
#include "ui_frmAppliance.h"
#include "ui_frmApplianceDetails.h"

namespace records::screens {

using core::binding::FillList;
using platform::qt::FromScreen;

frmAppliance::frmAppliance(QWidget* parent)
    : RecordForm({core::kAppliance, "Appliance", "IdAppliance"}, parent),
      ui_(std::make_unique<Ui::frmAppliance>()),
      details_(std::make_unique<Ui::frmApplianceDetails>()) {
    ui_->setupUi(this);
    details_->setupUi(ui_->tabAppliance);
    contracts_ = PlacePanel(new RelatedDBs(this), *ui_->tabContracts, "ucContracts");
    files_ = PlacePanel(new documents::screens::FileObjects, *ui_->tabFiles, "ucFOB");
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmAppliance::~frmAppliance() = default;

void frmAppliance::Setup(std::int32_t id, std::int32_t parentUnit) {
    OpenRecord(id, [this, parentUnit] {
        LoadPickFields(*this);
        core::binding::FillFromCommaList(*details_->cboDeprMethod, kStraightLine);
        core::binding::SelectByText(*details_->cboDeprMethod, kStraightLine);
        FillList(core::kVendorAccount, *details_->cboVendor, {.addNone = true});
        FillList(core::kUnit, *details_->cboUnit, {.selectedId = parentUnit, .addNone = true});
    });
}

void frmAppliance::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Appliance")
                             : tr("Appliance: %1 %2")
                                   .arg(details_->cboManufacturer->currentText(),
                                        details_->cboApplianceType->currentText()));
    contracts_->Load(core::kAppliance, Id());
    files_->SetRecord(core::kAppliance, Id());
}

std::vector<std::string> frmAppliance::Errors() {
    return ApplianceErrors(core::binding::GetSelectedId(*details_->cboUnit),
                           FromScreen(details_->cboApplianceType->currentText()));
}

void frmAppliance::AfterSave() {
    SavePickFields(*this);
}

void frmAppliance::Refresh(std::int16_t kind) {
    if (kind == core::kUnit || kind == core::kBuilding) {
        FillList(core::kUnit, *details_->cboUnit, {.addNone = true});
    }
    if (kind == core::kAccount) {
        FillList(core::kVendorAccount, *details_->cboVendor, {.addNone = true});
    }
}

} // namespace records::screens
