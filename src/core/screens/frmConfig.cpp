#include "core/screens/frmConfig.h"

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/screens/AddressBox.h"
#include "core/screens/ComboList.h"
#include "core/screens/TabPages.h"
#include "platform/qt/Text.h"
#include "ui_frmConfig.h"
#include "ui_frmConfigAnalysis.h"
#include "ui_frmConfigGeneral.h"
#include "ui_frmConfigLeases.h"
#include "ui_frmConfigOther.h"

namespace core::screens {

using platform::qt::ToScreen;

frmConfig::frmConfig(QWidget* parent)
    : RecordForm({kConfiguration, "Configuration", {}}, parent),
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
    PutLastInTabOrder(*this, *ui_->cmdAction);
    FillPlaceByZip(*general_->txtZip, {general_->txtCity, general_->txtState});
    connect(leases_->cboTermType, &QComboBox::currentTextChanged, this, &frmConfig::OfferExpiry);
    OpenOnClick(*general_->txtEmail, AddressKind::Mail);
    OpenOnClick(*general_->txtWeb, AddressKind::Web);
}

frmConfig::~frmConfig() = default;

void frmConfig::Setup() {
    OpenRecord(0, [this] {
        FillLists();
        ShowProgram();
        Load();
    });
}

/// The settings are one row without an id.
void frmConfig::FindRow(platform::Recordset& row) {
    row.Open(App().Connection, "SELECT * FROM Configuration", platform::CursorMode::Updatable);
}

void frmConfig::FindRowToWrite(platform::Recordset& row) {
    FindRow(row);
    if (row.Eof()) row.AddNew();
}

void frmConfig::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    OfferExpiry();
}

void frmConfig::ShowCaption() {
    setWindowTitle(tr("Configuration"));
}

void frmConfig::AfterSave() {
    SavePickList(*other_->cboDefaultCar);
}

void frmConfig::Refresh(std::int16_t kind) {
    if (kind == kAccount) FillAccounts();
}

void frmConfig::FillLists() {
    FillFromCommaList(*leases_->cboTermType, "WTW,MTM,Week(s),Month(s),Year(s)");
    SelectByText(*leases_->cboTermType, "Month(s)");
    FillFromCommaList(*leases_->cboExpireOption, "WTW,MTM,Renew,Expire");
    SelectByText(*leases_->cboExpireOption, "MTM");
    LoadPickList(*other_->cboDefaultCar);
    other_->cboDefaultCar->clearEditText();
    FillAccounts();
}

void frmConfig::FillAccounts() {
    FillList(kAccount, *other_->cboDefaultRentAccount, {.addNone = true});
    FillList(kAccount, *other_->cboDefaultDepositAccount, {.addNone = true});
    FillList(kMortgageeAccount, *other_->cboDefaultMortgagee, {.addNone = true});
    FillList(kAccount, *other_->cboDefaultMortgageAccount, {.addNone = true});
}

/// A lease that runs on from month to month or week to week has no end.
void frmConfig::OfferExpiry() {
    const QString type = leases_->cboTermType->currentText();
    const bool ends = type != QLatin1String("MTM") && type != QLatin1String("WTW");
    leases_->txtTerm->setEnabled(ends);
    leases_->lblExpireOption->setEnabled(ends);
    leases_->cboExpireOption->setEnabled(ends);
}

void frmConfig::ShowProgram() {
    other_->txtDbVersion->setText(QString::number(App().DbVersionRequired));
    other_->txtUserName->setText(ToScreen(App().UserName));
    other_->txtSecAccess->setText(QString::number(App().SecurityLevel));
}

} // namespace core::screens
