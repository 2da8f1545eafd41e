#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

#include "core/binding/NumberBox.h"
#include "core/forms/ErrorRoll.h"
#include "mortgages/screens/AmortPage.h"
#include "mortgages/screens/frmMortgage.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmMortgage.h"
#include "ui_frmMortgageGeneral.h"
#include "ui_frmMortgageOrigination.h"

namespace mortgages::screens {

using core::binding::NumberTyped;
using platform::Currency;
using platform::qt::ToScreen;

namespace {

constexpr double kMostCounted = 32'767;

std::int16_t CountIn(const QLineEdit& box) {
    return platform::RoundToInt16(std::clamp(NumberTyped(box), 0.0, kMostCounted));
}

double DollarsIn(const core::binding::MoneyEdit& box) {
    return box.Amount().value_or(Currency()).ToDouble();
}

/// Shows all digits that a user may have typed, without those that only a calculation produces.
void ShowNumber(QLineEdit& box, double number) {
    box.setText(ToScreen(platform::FormatNumber(number, "0.##########")));
    if (box.text().endsWith(QLatin1Char('.'))) box.setText(box.text().chopped(1));
}

/// Returns the contents of a control of the terms, to detect changes.
QString TermText(const QWidget& control) {
    if (const auto* const box = qobject_cast<const QLineEdit*>(&control)) return box->text();
    if (const auto* const tick = qobject_cast<const QAbstractButton*>(&control))
        return tick->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    return {};
}

void ShowAmount(QLineEdit& box, double amount) {
    box.setText(ToScreen(platform::FormatNumber(amount, platform::kMoneyFormat)));
}

} // namespace

void frmMortgage::ShowTerms() {
    const LoadingGuard loading(*this);
    loan_ = stored_;
    ShowAmount(*origin_->txtOrigPV, loan_.OrigPV());
    // Shown as whole periods: older books solved the term from the payment, as 360.0093213495.
    ShowNumber(*origin_->txtOrigPer, std::round(loan_.OrigPer()));
    ShowNumber(*origin_->txtOrigRate, loan_.OrigRate());
    origin_->dpDue->SetStoredText(ToScreen(loan_.FirstDue()));
    ShowAmount(*origin_->txtXPriAll, loan_.GetXPRI(0));
    origin_->chkIntOnly->setChecked(loan_.IntOnly());
    ShowNumber(*origin_->txtBalloonPer, loan_.BalloonPer());
    ShowPenaltyAndRates();
    KeepShownTerms();
    Recalculate();
}

void frmMortgage::ShowPenaltyAndRates() {
    origin_->chkARM->setChecked(loan_.ARM());
    ShowNumber(*origin_->txtARMLockedPer, loan_.ARMLockedPer());
    ShowNumber(*origin_->txtARMAdjPer, loan_.ARMAdjPer());
    ShowNumber(*origin_->txtARMPerCap, loan_.ARMPerCap());
    ShowNumber(*origin_->txtARMLifeCap, loan_.ARMLifeCap());
    origin_->chkPPM->setChecked(loan_.PPM());
    ShowNumber(*origin_->txtPPMPer, loan_.PPMPer());
    ShowNumber(*origin_->txtPPMTrigger, loan_.PPMTrigger());
    ShowNumber(*origin_->txtPPMPct, loan_.PPMPct());
}

void frmMortgage::KeepShownTerms() {
    shownTerms_.clear();
    for (const QWidget* const control : ui_->tabOrigination->findChildren<QWidget*>())
        shownTerms_[control] = TermText(*control);
}

bool frmMortgage::IsChanged(const QWidget& control) const {
    const auto shown = shownTerms_.find(&control);
    return shown == shownTerms_.end() || shown->second != TermText(control);
}

/// Only a new loan takes all terms. The origination of a saved one can't be changed, and terms that
/// the user left alone keep their stored digits.
void frmMortgage::ReadTerms(clsMortgage& loan) const {
    if (Id() != 0) return ReadSavedTerms(loan);
    loan.SetOrigPV(DollarsIn(*origin_->txtOrigPV));
    loan.SetOrigPer(NumberTyped(*origin_->txtOrigPer));
    loan.SetOrigRate(NumberTyped(*origin_->txtOrigRate));
    loan.SetBalloon(origin_->chkBalloon->isChecked());
    const auto due = origin_->dpDue->Day();
    if (due && due->IsSet()) loan.SetFirstDue(due->ToText());
    loan.SetXPri(0, DollarsIn(*origin_->txtXPriAll));
    loan.SetIntOnly(origin_->chkIntOnly->isChecked());
    loan.SetARM(origin_->chkARM->isChecked());
    ReadSavedTerms(loan);
}

void frmMortgage::ReadSavedTerms(clsMortgage& loan) const {
    const auto count = [&](const QLineEdit& box, void (clsMortgage::*set)(std::int16_t)) {
        if (IsChanged(box)) (loan.*set)(CountIn(box));
    };
    const auto number = [&](const QLineEdit& box, void (clsMortgage::*set)(double)) {
        if (IsChanged(box)) (loan.*set)(NumberTyped(box));
    };
    count(*origin_->txtBalloonPer, &clsMortgage::SetBalloonPer);
    count(*origin_->txtARMLockedPer, &clsMortgage::SetARMLockedPer);
    count(*origin_->txtARMAdjPer, &clsMortgage::SetARMAdjPer);
    number(*origin_->txtARMPerCap, &clsMortgage::SetARMPerCap);
    number(*origin_->txtARMLifeCap, &clsMortgage::SetARMLifeCap);
    if (IsChanged(*origin_->chkPPM)) loan.SetPPM(origin_->chkPPM->isChecked());
    count(*origin_->txtPPMPer, &clsMortgage::SetPPMPer);
    number(*origin_->txtPPMTrigger, &clsMortgage::SetPPMTrigger);
    number(*origin_->txtPPMPct, &clsMortgage::SetPPMPct);
}

void frmMortgage::TermsChanged() {
    if (!Loading()) Recalculate();
}

/// Shows the highest rates that an adjustable loan can reach, on a copy: the loan keeps its own.
void frmMortgage::ShowWorstCase() {
    clsMortgage worst = loan_;
    worst.SetMaxRates();
    core::forms::Guarded([&] { worst.ReCalc(); });
    amort_->ShowInstead(worst,
                        tr("Worst case: the highest rates that the terms allow. The mortgage "
                           "itself is not changed."));
    ui_->tabs->setCurrentWidget(ui_->tabAmortization);
}

/// Terms that can't be calculated, such as half-typed ones, are reported beside the schedule.
void frmMortgage::Recalculate() {
    try {
        loan_ = stored_;
        MakeChangesOn(loan_);
        amort_->ShowFault({});
    } catch (const platform::Error& error) {
        amort_->ShowFault(error.what());
    }
    ShowLoan();
}

void frmMortgage::ShowLoan() {
    ShowAmount(*origin_->txtOrigPmt, loan_.OrigPmt());
    clsMortgage balloon = loan_;
    balloon.SetBalloon(origin_->chkBalloon->isChecked());
    try {
        balloon.ReCalc();
        ShowAmount(*origin_->txtBalloonPmt, balloon.BalloonPmt());
    } catch (const platform::Error&) {
        origin_->txtBalloonPmt->clear(); // reported beside the schedule
    }
    amort_->Show(loan_);
    ShowCurrent();
}

void frmMortgage::ShowCurrent() {
    general_->txtNextDue->setText(ToScreen(loan_.NextDue().ToText()));
    general_->txtCurrentPeriod->setText(QString::number(loan_.CurrentPeriod()));
    const int left = std::max(loan_.GetPeriodsRemaining(), 0);
    general_->lblRemaining->setText(tr("of %1, %2 left").arg(loan_.GetPeriods()).arg(left));
    ShowNumber(*general_->txtCurrentI, loan_.GetRate(0));
    ShowAmount(*general_->txtCurrentPmt, loan_.GetPMT(0).ToDouble());
    general_->lblSplit->setText(tr("principal %1, interest %2")
                                    .arg(ToScreen(platform::FormatMoney(loan_.GetPPMT(0))),
                                         ToScreen(platform::FormatMoney(loan_.GetIPMT(0)))));
    ShowAmount(*ui_->txtBalance, loan_.GetPV(0));
    general_->cmdIncDueDate->setEnabled(loan_.CurrentPeriod() < loan_.GetPeriods());
    general_->cmdDecDueDate->setEnabled(loan_.CurrentPeriod() > 1);
    takeBack_->setEnabled(Id() != 0 && !ExtraEntries(loan_).empty());
}

} // namespace mortgages::screens
