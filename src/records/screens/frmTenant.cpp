#include "records/screens/frmTenant.h"

#include "books/screens/General_Ledger.h"
#include "core/Codes.h"
#include "core/RecordKinds.h"
#include "core/binding/AddressBox.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "platform/qt/Text.h"
#include "records/TenantRules.h"
#include "records/screens/Contacts.h"
#include "records/screens/Panels.h"
#include "records/screens/PickFields.h"
#include "records/screens/RelatedDBs.h"
#include "ui_frmTenant.h"
#include "ui_frmTenantHistory.h"
#include "ui_frmTenantIdentity.h"
#include "ui_frmTenantPerson.h"

namespace records::screens {

frmTenant::frmTenant(QWidget* parent)
    : RecordForm({core::kTenant, "Tenant", "IdTenant"}, parent),
      ui_(std::make_unique<Ui::frmTenant>()),
      person_(std::make_unique<Ui::frmTenantPerson>()),
      identity_(std::make_unique<Ui::frmTenantIdentity>()),
      history_(std::make_unique<Ui::frmTenantHistory>()) {
    using core::binding::AddressKind;
    ui_->setupUi(this);
    person_->setupUi(ui_->tabTenant);
    identity_->setupUi(ui_->tabIdentity);
    history_->setupUi(ui_->tabHistory);
    MakePanels();
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
    person_->txtLastName->setFocus();
    core::binding::OpenByIcon(*person_->txtEmail, AddressKind::Mail);
    core::binding::OpenByIcon(*person_->txtWeb, AddressKind::Web);
}

frmTenant::~frmTenant() = default;

void frmTenant::MakePanels() {
    incidents_ = PlacePanel(new RelatedDBs(this), *history_->incidents, "ucIncidents");
    contacts_ = PlacePanel(new Contacts(this), *ui_->tabContacts, "ucContacts");
    ledger_ = PlacePanel(new books::screens::General_Ledger(this), *ui_->tabLedger, "ucLedger");
    connect(contacts_, &Contacts::Changed, this, [this] { MarkDirty(); });
}

void frmTenant::Setup(std::int32_t id) {
    OpenRecord(
        id,
        [this] {
            core::binding::FillFromWords(*person_->cboStatus, core::kTenantStatuses);
            person_->cboStatus->setCurrentIndex(-1);
            LoadPickFields(*this);
        },
        [this] { person_->cboStatus->setCurrentIndex(0); });
}

void frmTenant::ShowCaption() {
    const QString name = person_->txtLastName->text();
    const bool isNew = Id() == 0;
    setWindowTitle(isNew ? tr("Adding New Tenant") : tr("Tenant: %1").arg(name));
    ui_->lblTitle->setText(isNew ? tr("New Tenant (Press Apply to Save)")
                                 : tr("Editing Tenant: %1").arg(name));
    incidents_->Load(core::kTenant, Id());
    contacts_->Load(core::kTenant, Id());
    ledger_->SetParty(core::kTenant, Id());
}

std::vector<std::string> frmTenant::Errors() {
    return TenantErrors(platform::qt::FromScreen(person_->txtLastName->text()));
}

void frmTenant::StoreRest() {
    contacts_->Write();
}

void frmTenant::AfterSave() {
    SavePickFields(*this);
    contacts_->NoteWritten();
}

} // namespace records::screens
