#include "shell/screens/frmConfig.h"

#include "core/BooksSettings.h"
#include "core/Codes.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/binding/AddressBox.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "platform/qt/Text.h"
#include "ui_frmConfig.h"
#include "ui_frmConfigAnalysis.h"
#include "ui_frmConfigGeneral.h"
#include "ui_frmConfigLeases.h"
#include "ui_frmConfigOther.h"

namespace shell::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmConfig::frmConfig(QWidget* parent)
    : core::forms::RecordForm({core::kConfiguration, "Configuration", {}}, parent),
      ui_(std::make_unique<Ui::frmConfig>()),
      general_(std::make_unique<Ui::frmConfigGeneral>()),
      analysis_(std::make_unique<Ui::frmConfigAnalysis>()),
      leases_(std::make_unique<Ui::frmConfigLeases>()),
      other_(std::make_unique<Ui::frmConfigOther>()) {
    ui_->setupUi(this);
    general_->setupUi(ui_->tabGeneral);
    analysis_->setupUi(ui_->tabAnalysis);
    leases_->setupUi(ui_->tabLeases);
    other_->setupUi(ui_->tabOther);
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
    core::binding::FillPlaceByZip(*general_->txtZip, {general_->txtCity, general_->txtState});
    connect(leases_->cboTermType, &QComboBox::currentTextChanged, this, &frmConfig::OfferExpiry);
    core::binding::OpenOnClick(*general_->txtEmail, core::binding::AddressKind::Mail);
    core::binding::OpenOnClick(*general_->txtWeb, core::binding::AddressKind::Web);
}

frmConfig::~frmConfig() = default;

void frmConfig::Setup() {
    OpenRecord(
        0,
        [this] {
            FillLists();
            ShowProgram();
        },
        [this] { Load(); });
}

/// Finds the settings, which are one row without an id.
void frmConfig::FindRow(platform::Recordset& row) {
    row = core::Write("SELECT * FROM Configuration");
}

void frmConfig::FindRowToWrite(platform::Recordset& row) {
    FindRow(row);
    if (row.Eof()) row.AddNew();
}

void frmConfig::ShowRow(platform::Recordset& row) {
    core::forms::RecordForm::ShowRow(row);
    ShowKeptSince();
    OfferExpiry();
}

/// Shows the day, which isn't a field of the row.
void frmConfig::ShowKeptSince() {
    keptSince_ = core::BooksKeptSince();
    leases_->dpKeptSince->SetDay(keptSince_);
}

void frmConfig::WriteRow(platform::Recordset& row) {
    core::forms::RecordForm::WriteRow(row);
    const platform::Date day = leases_->dpKeptSince->Day().value_or(keptSince_);
    if (day != keptSince_) core::SetBooksKeptSince(day);
}

void frmConfig::FollowOthers(const core::binding::Controls& /*touched*/) {
    if (leases_->dpKeptSince->Day() == keptSince_) ShowKeptSince();
}

void frmConfig::ShowCaption() {
    setWindowTitle(tr("Configuration"));
}

void frmConfig::AfterSave() {
    core::binding::SavePickList(*other_->cboDefaultCar);
}

void frmConfig::Refresh(core::RecordKind kind) {
    if (kind == core::kAccount) FillAccounts();
}

void frmConfig::FillLists() {
    core::binding::FillFromWords(*leases_->cboTermType, core::kLeaseTermTypes);
    core::binding::SelectByText(*leases_->cboTermType, core::kTermMonths);
    core::binding::FillFromWords(*leases_->cboExpireOption, core::kExpireOptions);
    core::binding::SelectByText(*leases_->cboExpireOption, core::kLeaseMonthToMonth);
    core::binding::LoadPickList(*other_->cboDefaultCar);
    other_->cboDefaultCar->clearEditText();
    FillAccounts();
}

void frmConfig::FillAccounts() {
    core::binding::FillList(core::kAccount, *other_->cboDefaultRentAccount, {.addNone = true});
    core::binding::FillList(core::kAccount, *other_->cboDefaultDepositAccount, {.addNone = true});
    core::binding::FillList(core::kMortgageeAccount, *other_->cboDefaultMortgagee,
                            {.addNone = true});
    core::binding::FillList(core::kAccount, *other_->cboDefaultMortgageAccount, {.addNone = true});
}

void frmConfig::OfferExpiry() {
    const bool ends = core::HasEnd(FromScreen(leases_->cboTermType->currentText()));
    leases_->txtTerm->setEnabled(ends);
    leases_->lblExpireOption->setEnabled(ends);
    leases_->cboExpireOption->setEnabled(ends);
}

void frmConfig::ShowProgram() {
    other_->txtDbVersion->setText(QString::number(core::App().DbVersionRequired));
    other_->txtUserName->setText(ToScreen(core::App().UserName));
    other_->txtSecAccess->setText(QString::number(core::App().SecurityLevel));
}

} // namespace shell::screens
