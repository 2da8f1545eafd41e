#include "leases/screens/frmLeaseWizard.h"

#include <array>

#include "core/Codes.h"
#include "core/EditRecord.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/References.h"
#include "core/binding/ComboList.h"
#include "core/binding/EnableContainer.h"
#include "core/binding/NumberBox.h"
#include "core/forms/ErrorRoll.h"
#include "leases/LeaseEditor.h"
#include "leases/screens/frmChargeFrom.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmLeaseWizardProperty.h"
#include "ui_frmLeaseWizardSummary.h"
#include "ui_frmLeaseWizardTenant.h"
#include "ui_frmLeaseWizardTerms.h"

namespace leases::screens {

using core::binding::EnableContainer;
using core::binding::FillList;
using core::binding::GetSelectedId;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmLeaseWizard::frmLeaseWizard(QWidget* parent)
    : frmWizard("frmLeaseWizard", parent),
      property_(std::make_unique<Ui::frmLeaseWizardProperty>()),
      tenant_(std::make_unique<Ui::frmLeaseWizardTenant>()),
      terms_(std::make_unique<Ui::frmLeaseWizardTerms>()),
      summary_(std::make_unique<Ui::frmLeaseWizardSummary>()) {
    setObjectName(QStringLiteral("frmLeaseWizard"));
    setWindowTitle(tr("New Lease Wizard"));
    MakeSteps();
    WireSteps();
    Connect();
}

frmLeaseWizard::~frmLeaseWizard() = default;

void frmLeaseWizard::MakeSteps() {
    AddTextStep(tr("Welcome"), tr("New Lease"),
                tr("This wizard will help you create a simple lease based on existing properties "
                   "or tenants, or you may add a new property or tenant."));
    property_->setupUi(&AddStep(tr("Property"), tr("Choose the property that will be leased")));
    tenant_->setupUi(&AddStep(tr("Tenant"), tr("Choose the tenant for this lease")));
    terms_->setupUi(&AddStep(tr("Terms"), tr("Set up the basic terms of the lease")));
    summary_->setupUi(&AddStep(tr("Summary"), tr("This lease will be created")));
}

void frmLeaseWizard::Connect() {
    connect(property_->optProperty0, &QRadioButton::toggled, this, &frmLeaseWizard::ShowAvailable);
    connect(tenant_->optTenant0, &QRadioButton::toggled, this, &frmLeaseWizard::ShowAvailable);
    connect(property_->cboProperty, &QComboBox::currentIndexChanged, this,
            [this] { Guarded([this] { PropertyChosen(); }); });
    connect(property_->txtZipCode, &QLineEdit::editingFinished, this, &frmLeaseWizard::LookUpZip);
    for (QLineEdit* const days : {terms_->txtTerm, terms_->txtLateDays}) {
        connect(days, &QLineEdit::editingFinished, this, [days] {
            days->setText(ToScreen(platform::FormatNumber(core::binding::NumberIn(*days), "#")));
        });
    }
}

void frmLeaseWizard::Setup() {
    Guarded([this] {
        FillList(core::kUnit, *property_->cboProperty, {.addNone = true});
        FillList(core::kTenant, *tenant_->cboTenant, {.addNone = true});
    });
    core::binding::FillFromWords(*terms_->cboTermType,
                                 std::array{core::kTermWeeks, core::kTermMonths});
    core::binding::SelectByText(*terms_->cboTermType, core::kTermMonths);
    terms_->dpStartDate->SetDay(FirstOfNextMonth());
    terms_->txtTerm->setText(QStringLiteral("12"));
    terms_->txtRent->SetAmount({});
    terms_->txtLateFee->SetAmount({});
    summary_->chkOpenLease->setChecked(true);
    ShowAvailable();
    Begin();
}

void frmLeaseWizard::ShowAvailable() {
    const bool ownProperty = property_->optProperty0->isChecked();
    property_->cboProperty->setEnabled(ownProperty);
    EnableContainer(*property_->fraNewProperty, !ownProperty);
    const bool ownTenant = tenant_->optTenant0->isChecked();
    tenant_->cboTenant->setEnabled(ownTenant);
    EnableContainer(*tenant_->fraNewTenant, !ownTenant);
}

void frmLeaseWizard::PropertyChosen() {
    terms_->txtRent->SetAmount(core::GetUnitRent(GetSelectedId(*property_->cboProperty)));
}

void frmLeaseWizard::LookUpZip() {
    const auto place = core::ZipLookup(FromScreen(property_->txtZipCode->text()));
    if (!place) return;
    const auto fill = [](QLineEdit& box, const std::string& text) {
        if (box.text().isEmpty()) box.setText(ToScreen(text));
    };
    fill(*property_->txtCity, place->city);
    fill(*property_->txtCounty, place->county);
    fill(*property_->txtState, place->state);
}

LeaseWizardEntry frmLeaseWizard::Entered() const {
    const auto text = [](const QLineEdit* box) { return FromScreen(box->text().trimmed()); };
    const auto count = [](const QLineEdit* box) {
        return platform::RoundToInt16(core::binding::NumberIn(*box));
    };
    return {.newProperty = property_->optProperty1->isChecked(),
            .idUnit = GetSelectedId(*property_->cboProperty),
            .address = text(property_->txtAddress),
            .city = text(property_->txtCity),
            .county = text(property_->txtCounty),
            .state = text(property_->txtState),
            .zip = text(property_->txtZipCode),
            .newTenant = tenant_->optTenant1->isChecked(),
            .idTenant = GetSelectedId(*tenant_->cboTenant),
            .lastName = text(tenant_->txtLastName),
            .firstName = text(tenant_->txtFirstName),
            .startDate = terms_->dpStartDate->Day().value_or(platform::Date()),
            .term = count(terms_->txtTerm),
            .termType = FromScreen(terms_->cboTermType->currentText()),
            .rent = platform::StrToMoney(text(terms_->txtRent)),
            .lateFee = platform::StrToMoney(text(terms_->txtLateFee)),
            .lateDays = count(terms_->txtLateDays)};
}

std::vector<std::string> frmLeaseWizard::StepErrors(int step) {
    return LeaseWizardErrors(LeaseWizardStep{step}, Entered());
}

void frmLeaseWizard::ShowStep(int step) {
    if (LeaseWizardStep{step} == LeaseWizardStep::Summary) ShowSummary();
}

void frmLeaseWizard::ShowSummary() {
    const LeaseWizardEntry entry = Entered();
    const auto money = [](platform::Currency amount) {
        return ToScreen(platform::FormatMoney(amount));
    };
    summary_->lblProperty->setText(entry.newProperty ? tr("%1 (new)").arg(ToScreen(entry.address))
                                                     : property_->cboProperty->currentText());
    const std::string name =
        entry.lastName + (entry.firstName.empty() ? "" : ", " + entry.firstName);
    summary_->lblTenant->setText(entry.newTenant ? tr("%1 (new)").arg(ToScreen(name))
                                                 : tenant_->cboTenant->currentText());
    summary_->lblStart->setText(entry.startDate.IsSet() ? ToScreen(entry.startDate.ToText())
                                                        : tr("not set"));
    summary_->lblTermText->setText(
        QStringLiteral("%1 %2").arg(entry.term).arg(ToScreen(entry.termType)));
    summary_->lblRentText->setText(money(entry.rent));
    summary_->lblFeeText->setText(
        entry.lateFee.IsZero() ? tr("none")
                               : tr("%1, %n day(s) after the due date", nullptr, entry.lateDays)
                                     .arg(money(entry.lateFee)));
}

/// Asks from which day a lease that is entered late is charged; returns false if the user cancels.
bool frmLeaseWizard::Agreed() {
    const auto firstDue = AskChargeFrom(EnteredTerms(Entered()), *this);
    firstDue_ = firstDue.value_or(platform::Date());
    return firstDue.has_value();
}

void frmLeaseWizard::Finish() {
    LeaseWizardEntry entry = Entered();
    entry.firstDue = firstDue_;
    const std::int32_t idLease = FinishLeaseWizard(entry);
    if (summary_->chkOpenLease->isChecked()) core::EditRecord(core::kLease, idLease);
}

void frmLeaseWizard::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                  std::int32_t /*id*/) {
    if (kind == core::kUnit) FillList(core::kUnit, *property_->cboProperty, {.addNone = true});
    if (kind == core::kTenant) FillList(core::kTenant, *tenant_->cboTenant, {.addNone = true});
}

} // namespace leases::screens
