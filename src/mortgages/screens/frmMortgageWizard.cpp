#include "mortgages/screens/frmMortgageWizard.h"

#include <QCheckBox>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/EnableContainer.h"
#include "core/binding/NumberBox.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "ui_frmMortgageWizardCurrent.h"
#include "ui_frmMortgageWizardDetails.h"
#include "ui_frmMortgageWizardLender.h"
#include "ui_frmMortgageWizardTerms.h"

namespace mortgages::screens {

using core::binding::NumberIn;
using core::forms::Guarded;
using platform::Currency;
using platform::qt::FromScreen;

frmMortgageWizard::frmMortgageWizard(QWidget* parent)
    : frmWizard("frmMortgageWizard", parent),
      lender_(std::make_unique<Ui::frmMortgageWizardLender>()),
      terms_(std::make_unique<Ui::frmMortgageWizardTerms>()),
      details_(std::make_unique<Ui::frmMortgageWizardDetails>()),
      current_(std::make_unique<Ui::frmMortgageWizardCurrent>()) {
    setObjectName(QStringLiteral("frmMortgageWizard"));
    setWindowTitle(tr("New Mortgage Wizard"));
    MakeSteps();
    WireSteps();
    connect(lender_->optAccount0, &QRadioButton::toggled, this, &frmMortgageWizard::ShowAvailable);
    // Most loans still have their first rate.
    connect(terms_->txtOrigInt, &QLineEdit::textEdited, this, [this](const QString& rate) {
        if (!current_->txtCurrInt->isModified()) current_->txtCurrInt->setText(rate);
    });
}

frmMortgageWizard::~frmMortgageWizard() = default;

void frmMortgageWizard::MakeSteps() {
    AddTextStep(tr("Welcome"), tr("New Mortgage"),
                tr("This wizard adds a mortgage, also one that has been running for years. Have "
                   "the loan's papers and the lender's latest statement at hand: the first terms "
                   "are in the papers, the balance and the next payment in the statement."));
    lender_->setupUi(
        &AddStep(tr("Lender"), tr("Choose the lender that provided the loan (optional):")));
    terms_->setupUi(&AddStep(tr("Terms"), tr("Set up the original terms of the loan:")));
    details_->setupUi(&AddStep(tr("Details"), tr("More loan details:")));
    current_->setupUi(&AddStep(tr("Today"), tr("Please enter the current values for this loan:")));
    chkOpenMtg_ = new QCheckBox(tr("&Open the new Mortgage"));
    chkOpenMtg_->setObjectName(QStringLiteral("chkOpenMtg"));
    AddTextStep(tr("Finish"), tr("The mortgage will be added"),
                tr("The schedule is aligned with the current values. Nothing is charged for the "
                   "days up to today; from tomorrow on the mortgage charges itself. Escrow, "
                   "insurance and late fees can be entered on its screen."),
                "lblEnd", chkOpenMtg_);
}

void frmMortgageWizard::Setup() {
    Guarded([this] { core::binding::FillList(core::kAccount, *lender_->cboAccount); });
    const platform::Date today = platform::Today();
    const platform::Date first(today.Year(), today.Month(), 1);
    terms_->txtOrigPV->setText(QStringLiteral("100000.00"));
    terms_->txtOrigPmt->setText(QStringLiteral("733.76"));
    terms_->txtOrigTerm->setText(QStringLiteral("360"));
    terms_->txtOrigInt->setText(QStringLiteral("8.0"));
    details_->dpFirstDue->SetDay(first);
    current_->dpNextDue->SetDay(first);
    current_->txtCurrPV->SetAmount({});
    current_->txtCurrInt->setText(QStringLiteral("8.0"));
    chkOpenMtg_->setChecked(true);
    ShowAvailable();
    Begin();
}

void frmMortgageWizard::ShowAvailable() {
    const bool isNew = lender_->optAccount0->isChecked();
    core::binding::EnableContainer(*lender_->fraNew, isNew);
    core::binding::EnableContainer(*lender_->fraExisting, !isNew);
}

WizardEntries frmMortgageWizard::Entered() const {
    return {.newAccount = lender_->optAccount0->isChecked(),
            .accountName = FromScreen(lender_->txtAccount->text()),
            .idAccount = core::binding::GetSelectedId(*lender_->cboAccount),
            .lenderName = FromScreen(lender_->cboAccount->currentText()),
            .origPV = terms_->txtOrigPV->Amount().value_or(Currency()),
            .origTerm = NumberIn(*terms_->txtOrigTerm),
            .origRate = NumberIn(*terms_->txtOrigInt),
            .origPmt = terms_->txtOrigPmt->Amount().value_or(Currency()),
            .firstDue = details_->dpFirstDue->Day().value_or(platform::Date()),
            .loanNumber = FromScreen(details_->txtLoanNumber->text().trimmed()),
            .interestOnly = details_->optIntOnly->isChecked(),
            .adjustable = details_->optARM->isChecked(),
            .nextDue = current_->dpNextDue->Day().value_or(platform::Date()),
            .currentPV = current_->txtCurrPV->Amount().value_or(Currency()),
            .currentRate = NumberIn(*current_->txtCurrInt)};
}

std::vector<std::string> frmMortgageWizard::StepErrors(int step) {
    const std::string_view fault = StepFault(WizardStep{step}, Entered());
    if (fault.empty()) return {};
    return {std::string(fault)};
}

void frmMortgageWizard::Finish() {
    const std::int32_t id = FinishWizard(Entered());
    if (chkOpenMtg_->isChecked()) core::EditRecord(core::kMortgage, id);
}

} // namespace mortgages::screens
