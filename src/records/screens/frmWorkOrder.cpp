#include "records/screens/frmWorkOrder.h"

#include "core/Codes.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/EnableContainer.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/TabPages.h"
#include "platform/database/FieldReadings.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "records/WorkOrderRules.h"
#include "records/screens/Panels.h"
#include "records/screens/RelatedDBs.h"
#include "ui_frmWorkOrder.h"
#include "ui_frmWorkOrderJob.h"

namespace records::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;

frmWorkOrder::frmWorkOrder(QWidget* parent)
    : RecordForm({core::kWorkOrder, "WorkOrder", "IdWorkOrder"}, parent),
      ui_(std::make_unique<Ui::frmWorkOrder>()),
      job_(std::make_unique<Ui::frmWorkOrderJob>()) {
    ui_->setupUi(this);
    job_->setupUi(ui_->tabJob);
    MakePanels();
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
    connect(job_->cboIdUnit, &QComboBox::currentIndexChanged, this,
            [this] { core::forms::Guarded([this] { FillUnitLists(); }); });
    connect(job_->cboIdVendor, &QComboBox::currentIndexChanged, this, [this] { ShowVendor(); });
    job_->txtDescription->setFocus();
}

frmWorkOrder::~frmWorkOrder() = default;

void frmWorkOrder::MakePanels() {
    history_ = PlacePanel(new RelatedDBs(this), *ui_->tabHistory, "ucHistory");
}

void frmWorkOrder::Setup(std::int32_t id, std::int32_t idUnit) {
    OpenRecord(
        id, [this, idUnit] { FillLists(idUnit); },
        [this] {
            job_->cboStatus->setCurrentIndex(0);
            job_->dpDateOpened->SetDay(platform::Today());
            ShowVendor();
        });
}

void frmWorkOrder::FillLists(std::int32_t idUnit) {
    core::binding::FillFromWords(*job_->cboStatus, core::kWorkOrderStatuses);
    FillList(core::kUnit, *job_->cboIdUnit, {.selectedId = idUnit, .addNone = true});
    FillList(core::kTenant, *job_->cboInitiator, {.keepText = true});
    FillVendors();
    FillUnitLists();
}

void frmWorkOrder::FillVendors() {
    FillList(core::kVendorAccount, *job_->cboIdVendor, {.addNone = true});
}

void frmWorkOrder::FillUnitLists() {
    FillUnitLists(GetSelectedId(*job_->cboIdUnit));
}

void frmWorkOrder::FillUnitLists(std::int32_t idUnit) {
    FillList(core::kRoom, *job_->cboIdRoom, {.addNone = true, .parentId = idUnit});
    FillList(core::kAppliance, *job_->cboIdAppliance, {.addNone = true, .parentId = idUnit});
    core::binding::FillListWith(
        core::kOwner, idUnit, *job_->cboIdOwner,
        [idUnit](core::ChoiceList& owners) { FillOwnersOfUnit(owners, idUnit); });
}

void frmWorkOrder::ShowVendor() {
    core::binding::EnableContainer(*job_->fraVendor, GetSelectedId(*job_->cboIdVendor) != 0);
}

void frmWorkOrder::FillListsFor(platform::Recordset& row) {
    FillUnitLists(platform::IdOf(row["IdUnit"]));
}

void frmWorkOrder::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    ShowVendor();
}

void frmWorkOrder::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    if (WritesNewRow() && row["IdParent"].IsNull()) row["IdParent"].Set(std::int32_t{0});
}

void frmWorkOrder::ShowCaption() {
    const QString name = job_->txtDescription->text();
    const bool isNew = Id() == 0;
    setWindowTitle(isNew ? tr("Adding New WorkOrder") : tr("WorkOrder: %1").arg(name));
    ui_->lblTitle->setText(isNew ? tr("New WorkOrder (Press Apply to Save)")
                                 : tr("Editing WorkOrder: %1").arg(name));
    for (int page = 1; page < ui_->tabs->count(); ++page)
        ui_->tabs->setTabEnabled(page, !isNew);
    history_->Load(core::kWorkOrder, Id());
}

std::vector<std::string> frmWorkOrder::Errors() {
    return WorkOrderErrors(platform::qt::FromScreen(job_->txtDescription->text()));
}

void frmWorkOrder::Refresh(core::RecordKind kind) {
    switch (kind) {
        case core::kUnit:
            FillList(core::kUnit, *job_->cboIdUnit, {.addNone = true});
            FillUnitLists();
            break;
        case core::kTenant:
            FillList(core::kTenant, *job_->cboInitiator, {.keepText = true});
            break;
        case core::kAccount:
            FillVendors();
            ShowVendor();
            FillUnitLists();
            break;
        case core::kRoom:
        case core::kAppliance:
        case core::kOwner:
            FillUnitLists();
            break;
        default:
            break;
    }
}

} // namespace records::screens
