#include "core/screens/frmConfig.h"

#include <QMouseEvent>
#include <QPushButton>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/References.h"
#include "core/screens/ComboList.h"
#include "platform/dialogs/Desktop.h"
#include "platform/qt/Text.h"
#include "ui_frmConfig.h"
#include "ui_frmConfigAnalysis.h"
#include "ui_frmConfigGeneral.h"
#include "ui_frmConfigLeases.h"
#include "ui_frmConfigOther.h"

namespace core::screens {

using platform::qt::FromScreen;
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
    // The buttons were made before what stands on the tabs.
    QWidget* last = other_->txtSecAccess;
    for (auto* const button : ui_->cmdAction->findChildren<QPushButton*>()) {
        setTabOrder(last, button);
        last = button;
    }
    connect(general_->txtZip, &QLineEdit::editingFinished, this, &frmConfig::LookUpZip);
    connect(leases_->cboTermType, &QComboBox::currentTextChanged, this, &frmConfig::OfferExpiry);
    general_->txtEmail->installEventFilter(this);
    general_->txtWeb->installEventFilter(this);
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

void frmConfig::LookUpZip() {
    const auto place = ZipLookup(FromScreen(general_->txtZip->text()));
    if (!place) return;
    if (general_->txtCity->text().isEmpty()) general_->txtCity->setText(ToScreen(place->city));
    if (general_->txtState->text().isEmpty()) general_->txtState->setText(ToScreen(place->state));
}

void frmConfig::ShowProgram() {
    other_->txtDbVersion->setText(QString::number(App().DbVersionRequired));
    other_->txtUserName->setText(ToScreen(App().UserName));
    other_->txtSecAccess->setText(QString::number(App().SecurityLevel));
}

/// A click on an address goes there; one into a box that is being typed in only sets its caret.
bool frmConfig::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* const box = qobject_cast<QLineEdit*>(watched);
        const bool isLeft = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        if (box && isLeft && !box->isModified()) OpenAddress(*box);
    }
    return RecordForm::eventFilter(watched, event);
}

void frmConfig::OpenAddress(const QLineEdit& box) {
    const std::string address = FromScreen(box.text().trimmed());
    if (address.empty()) return;
    if (&box == general_->txtEmail) {
        platform::TheDesktop().WriteMail(address);
    } else {
        platform::TheDesktop().OpenWebPage(address);
    }
}

} // namespace core::screens
