#include "records/screens/frmAppliance.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "records/screens/Panels.h"
#include "records/screens/RelatedDBs.h"
#include "ui_frmAppliance.h"
#include "ui_frmApplianceDetails.h"

namespace records::screens {

frmAppliance::frmAppliance(QWidget* parent)
    : FurnishingForm(core::kAppliance, NoUnit::Offered, parent),
      ui_(std::make_unique<Ui::frmAppliance>()),
      details_(std::make_unique<Ui::frmApplianceDetails>()) {
    ui_->setupUi(this);
    details_->setupUi(ui_->tabAppliance);
    contracts_ = PlacePanel(new RelatedDBs(this), *ui_->tabContracts, "ucContracts");
    WireFurnishing(*details_->cboUnit, *ui_->cmdAction);
}

frmAppliance::~frmAppliance() = default;

void frmAppliance::FillLists() {
    core::binding::FillFromCommaList(*details_->cboDeprMethod, kStraightLine);
    core::binding::SelectByText(*details_->cboDeprMethod, kStraightLine);
    FillVendors();
}

void frmAppliance::FillVendors() {
    core::binding::FillList(core::kVendorAccount, *details_->cboVendor, {.addNone = true});
}

QString frmAppliance::Name() const {
    return QStringLiteral("%1 %2").arg(details_->cboManufacturer->currentText(),
                                       details_->cboApplianceType->currentText());
}

void frmAppliance::ShowCaption() {
    contracts_->Load(core::kAppliance, Id());
    FurnishingForm::ShowCaption();
}

std::vector<std::string> frmAppliance::Errors() {
    return ApplianceErrors(core::binding::GetSelectedId(*details_->cboUnit),
                           platform::qt::FromScreen(details_->cboApplianceType->currentText()));
}

void frmAppliance::Refresh(core::RecordKind kind) {
    FurnishingForm::Refresh(kind);
    if (kind == core::kAccount) FillVendors();
}

} // namespace records::screens
