#include "records/screens/frmIncident.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "records/TenantRules.h"
#include "ui_frmIncident.h"

namespace records::screens {

using core::binding::FillList;

frmIncident::frmIncident(QWidget* parent)
    : RecordForm({core::kIncident, "Incident", "IdIncident"}, parent),
      ui_(std::make_unique<Ui::frmIncident>()) {
    ui_->setupUi(this);
    Wire();
    ui_->txtDescription->setFocus();
}

frmIncident::~frmIncident() = default;

void frmIncident::Setup(std::int32_t id, std::int32_t parentTenant) {
    OpenRecord(
        id,
        [this, parentTenant] {
            core::binding::FillFromCommaList(*ui_->cboSeverity, kSeverities);
            FillList(core::kTenant, *ui_->cboTenant, {.selectedId = parentTenant, .addNone = true});
        },
        [this] {
            ui_->cboSeverity->setCurrentIndex(0);
            ui_->dpEntryDate->SetDay(platform::Today());
        });
}

void frmIncident::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Incident")
                             : tr("Incident: %1").arg(ui_->txtDescription->text()));
}

std::vector<std::string> frmIncident::Errors() {
    return IncidentErrors(platform::qt::FromScreen(ui_->txtDescription->text()));
}

void frmIncident::Refresh(core::RecordKind kind) {
    if (kind == core::kTenant) FillList(core::kTenant, *ui_->cboTenant, {.addNone = true});
}

} // namespace records::screens
