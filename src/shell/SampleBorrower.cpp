#include "shell/SampleBorrower.h"

#include "core/RecordHelpers.h"
#include "core/Rows.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/mMortgage.h"
#include "platform/database/Recordset.h"

namespace shell {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

SampleBorrower::SampleBorrower(const store::SampleLoan& plan) : plan_(plan) {
    PlanNextPayment();
}

void SampleBorrower::LiveThrough(Date day) {
    if (day != nextPayment_) return;
    Pay();
    PlanNextPayment();
}

void SampleBorrower::Pay() const {
    mortgages::UpdateMortgageById(plan_.idMortgage, mortgages::RunMode::CatchUp);
    mortgages::MortgagePayment payment = mortgages::ProposeMortgagePayment(plan_.idMortgage);
    mortgages::SelectAll(payment, mortgages::ChargeChoice::All, true);
    if (payment.PaidAmount() > Currency()) {
        mortgages::SubmitMortgagePayment(payment);
    }
}

void SampleBorrower::PlanNextPayment() {
    platform::Recordset row =
        core::Read("SELECT NextDue FROM Mortgage WHERE IdMortgage = ?", {plan_.idMortgage});
    const Date nextDue = row["NextDue"].IsBlank() ? Date() : row["NextDue"].AsDate();
    const bool stops = plan_.stopsPaying.IsSet() && nextDue >= plan_.stopsPaying;
    nextPayment_ =
        !nextDue.IsSet() || stops ? Date() : DateAdd(Interval::Day, plan_.daysAfterDue, nextDue);
}

void SampleBorrower::NoteEquity() const {
    core::Execute(
        "UPDATE Building SET Equity = ? WHERE IdBuilding = ?",
        {Currency::FromDouble(core::GetBuildingEquity(plan_.idBuilding)), plan_.idBuilding});
}

} // namespace shell
