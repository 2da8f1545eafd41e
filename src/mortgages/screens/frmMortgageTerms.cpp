#include <QCheckBox>
#include <algorithm>
#include <cmath>

#include "mortgages/screens/AmortPage.h"
#include "mortgages/screens/frmMortgage.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmMortgage.h"
#include "ui_frmMortgageGeneral.h"
#include "ui_frmMortgageOrigination.h"

namespace mortgages::screens {

using platform::Currency;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr double kMostCounted = 32'767;

double NumberIn(const QLineEdit& box) {
    try {
        return platform::TryParseNumber(FromScreen(box.text())).value_or(0);
    } catch (const platform::Error&) {
        return 0; // too large to be one
    }
}

std::int16_t CountIn(const QLineEdit& box) {
    return platform::RoundToInt16(std::clamp(NumberIn(box), 0.0, kMostCounted));
}

double AmountIn(const core::binding::MoneyEdit& box) {
    return box.Amount().value_or(Currency()).ToDouble();
}

/// All the digits that a person may have typed, and none that only the reckoning made.
void ShowNumber(QLineEdit& box, double number) {
    box.setText(ToScreen(platform::FormatNumber(number, "0.##########")));
    if (box.text().endsWith(QLatin1Char('.'))) box.setText(box.text().chopped(1));
}

void ShowAmount(QLineEdit& box, double amount) {
    box.setText(ToScreen(platform::FormatNumber(amount, platform::kMoneyFormat)));
}

} // namespace

void frmMortgage::ShowTerms() {
    const LoadingGuard loading(*this);
    ShowAmount(*origin_->txtOrigPV, loan_.OrigPV());
    // Whole periods: the terms of older books are solved from their payment, as 360.0093213495.
    ShowNumber(*origin_->txtOrigPer, std::round(loan_.OrigPer()));
    ShowNumber(*origin_->txtOrigRate, loan_.OrigRate());
    origin_->dpDue->SetStoredText(ToScreen(loan_.FirstDue()));
    ShowAmount(*origin_->txtXPriAll, loan_.GetXPRI(0));
    origin_->chkIntOnly->setChecked(loan_.IntOnly());
    ShowNumber(*origin_->txtBalloonPer, loan_.BalloonPer());
    ShowPenaltyAndRates();
    Reckon();
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

/// What can be changed here; the origination of a saved loan can't, and its stored digits stay.
void frmMortgage::ReadTerms() {
    if (Id() == 0) {
        loan_.SetOrigPV(AmountIn(*origin_->txtOrigPV));
        loan_.SetOrigPer(NumberIn(*origin_->txtOrigPer));
        loan_.SetOrigRate(NumberIn(*origin_->txtOrigRate));
        loan_.SetBalloon(origin_->chkBalloon->isChecked());
        const auto due = origin_->dpDue->Day();
        if (due && due->IsSet()) loan_.SetFirstDue(due->ToText());
    }
    loan_.SetXPri(0, AmountIn(*origin_->txtXPriAll));
    loan_.SetIntOnly(origin_->chkIntOnly->isChecked());
    loan_.SetBalloonPer(CountIn(*origin_->txtBalloonPer));
    loan_.SetARM(origin_->chkARM->isChecked());
    loan_.SetARMLockedPer(CountIn(*origin_->txtARMLockedPer));
    loan_.SetARMAdjPer(CountIn(*origin_->txtARMAdjPer));
    loan_.SetARMPerCap(NumberIn(*origin_->txtARMPerCap));
    loan_.SetARMLifeCap(NumberIn(*origin_->txtARMLifeCap));
    loan_.SetPPM(origin_->chkPPM->isChecked());
    loan_.SetPPMPer(CountIn(*origin_->txtPPMPer));
    loan_.SetPPMTrigger(NumberIn(*origin_->txtPPMTrigger));
    loan_.SetPPMPct(NumberIn(*origin_->txtPPMPct));
}

void frmMortgage::TermsChanged() {
    if (Loading()) return;
    loanChanged_ = true;
    ReadTerms();
    Reckon();
}

/// Terms that can't be reckoned, while they are typed for one, are told beside the schedule.
void frmMortgage::Reckon() {
    try {
        loan_.ReCalc();
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
        origin_->txtBalloonPmt->clear(); // told beside the schedule
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
}

} // namespace mortgages::screens
