#include "records/screens/frmAccount.h"

#include <algorithm>

#include "books/screens/General_Ledger.h"
#include "core/Configuration.h"
#include "core/RecordKinds.h"
#include "core/binding/AddressBox.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "platform/qt/Text.h"
#include "records/screens/Contacts.h"
#include "records/screens/Panels.h"
#include "ui_frmAccount.h"
#include "ui_frmAccountDetails.h"

namespace records::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmAccount::frmAccount(QWidget* parent)
    : RecordForm({core::kAccount, "Account", "IdAccount"}, parent),
      ui_(std::make_unique<Ui::frmAccount>()),
      details_(std::make_unique<Ui::frmAccountDetails>()) {
    using core::binding::AddressKind;
    ui_->setupUi(this);
    details_->setupUi(ui_->tabAccount);
    MakePanels();
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
    details_->cboAccountType->setFocus();
    core::binding::FillPlaceByZip(*details_->txtZip, {details_->txtCity, details_->txtState});
    core::binding::OpenByIcon(*details_->txtEmail, AddressKind::Mail);
    core::binding::OpenByIcon(*details_->txtWeb, AddressKind::Web);
    connect(details_->cboAccountType, &QComboBox::currentTextChanged, this,
            &frmAccount::ShowSecrets);
}

frmAccount::~frmAccount() = default;

void frmAccount::MakePanels() {
    contacts_ = PlacePanel(new Contacts(this), *ui_->tabContacts, "ucContacts");
    ledger_ = PlacePanel(new books::screens::General_Ledger(this), *ui_->tabLedger, "ucLedger");
    connect(contacts_, &Contacts::Changed, this, [this] { MarkDirty(); });
}

void frmAccount::Setup(std::int32_t id, std::string_view newType) {
    OpenRecord(
        id, [this] { FillTypes(); },
        [this, newType = std::string(newType)] {
            core::binding::SelectByText(*details_->cboAccountType, newType, {.setText = true});
            details_->txtState->setText(ToScreen(core::Config().DefaultState));
            details_->txtBalance->setText(QStringLiteral("0.00"));
        });
    ShowSecrets();
}

void frmAccount::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    ShowSecrets();
}

void frmAccount::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    const std::initializer_list<const QWidget*> parts = {
        details_->txtCompany, details_->txtLastName, details_->txtFirstName, details_->txtInitial,
        details_->chkShowAsIndividual};
    if (WritesNewRow() ||
        std::ranges::any_of(parts, [this](const QWidget* part) { return IsTouched(*part); })) {
        row["ShowAs"].Set(ShowAs(Name()));
    }
}

void frmAccount::ShowCaption() {
    const QString shownAs = details_->lblShowAs->text();
    const bool isNew = Id() == 0;
    setWindowTitle(isNew ? tr("Adding New Account") : tr("Account: %1").arg(shownAs));
    ui_->lblTitle->setText(isNew ? tr("New Account (Press Apply to Save)")
                                 : tr("Editing Account: %1").arg(shownAs));
    contacts_->Load(core::kAccount, Id());
    ledger_->SetParty(core::kAccount, Id());
}

std::vector<std::string> frmAccount::Errors() {
    return AccountErrors(Name());
}

void frmAccount::StoreRest() {
    contacts_->Write();
}

void frmAccount::AfterSave() {
    contacts_->NoteWritten();
}

void frmAccount::Refresh(core::RecordKind kind) {
    if (kind == core::kAccount) FillTypes();
}

/// Refills the list but keeps the text in the box: it is the account's own type, or being typed.
void frmAccount::FillTypes() {
    const std::string text = FromScreen(details_->cboAccountType->currentText());
    const QSignalBlocker quiet(details_->cboAccountType);
    details_->cboAccountType->clear();
    core::binding::FillFromCommaList(*details_->cboAccountType, OfferedAccountTypes());
    core::binding::SelectByText(*details_->cboAccountType, text, {.setText = true});
}

void frmAccount::ShowSecrets() {
    details_->txtAccountNumber->SetMasking(
        HasSecretNumber(FromScreen(details_->cboAccountType->currentText())));
}

AccountName frmAccount::Name() const {
    return {FromScreen(details_->txtCompany->text()), FromScreen(details_->txtLastName->text()),
            FromScreen(details_->txtFirstName->text()), FromScreen(details_->txtInitial->text()),
            details_->chkShowAsIndividual->isChecked()};
}

} // namespace records::screens
