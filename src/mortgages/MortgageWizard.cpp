#include "mortgages/MortgageWizard.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/clsMortgage.h"
#include "mortgages/mMortgage.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace mortgages {

using platform::Currency;
using platform::Recordset;

namespace {

constexpr std::string_view kNote = "Added by Mortgage Wizard";

std::int32_t AddLender(const WizardEntries& entries) {
    core::RowToWrite rows("Account", "IdAccount");
    rows["Hide"].Set(false);
    rows["Selected"].Set(false);
    rows["ShowAs"].Set(platform::Trim(entries.accountName));
    rows["Company"].Set(platform::Trim(entries.accountName));
    rows["AccountType"].Set("Mortgagee");
    rows["AccountNumber"].Set(entries.loanNumber);
    rows["Balance"].Set(Currency());
    rows["Notes"].Set(kNote);
    rows.row.Update();
    return rows.id;
}

/// Returns the loan as its current figures describe it: a balance below the schedule's was paid off
/// with the period before.
clsMortgage LoanOf(const WizardEntries& entries, std::string_view description) {
    const double rate = entries.origRate * 0.01;
    const double currentRate = entries.currentRate * 0.01;
    double periods = entries.origTerm;
    double payment = entries.origPmt.ToDouble();
    clsMortgage loan;
    loan.SetDescription(description);
    loan.CreateMtg(entries.firstDue.ToText(), entries.origPV.ToDouble(), periods, rate, payment,
                   entries.interestOnly, entries.adjustable);
    const int period = DateDiff(platform::Interval::Month, entries.firstDue, entries.nextDue) + 1;
    if (period > 1) {
        if (currentRate != rate) {
            loan.SetRate(period, currentRate);
            loan.ReCalc();
        }
        const double paidAhead = loan.GetPV(period) - entries.currentPV.ToDouble();
        if (paidAhead > 0) {
            loan.SetXPri(period - 1, paidAhead);
            loan.ReCalc();
        }
    }
    loan.SetCurrentPeriod(period);
    return loan;
}

void WriteUntold(Recordset& row) {
    for (const auto* link : {"IdMortgagor", "IdEscrow", "IdLastPmt", "IdBuilding"})
        row[link].Set(std::int32_t{0});
    for (const auto* amount : {"EscrowAmount", "PMI", "LateFee", "LastInsurance", "LastTaxes"})
        row[amount].Set(Currency());
    for (const auto* count :
         {"EscrowReviewInterval", "EscrowReviewPeriods", "EscrowBuffer", "GracePeriod"})
        row[count].Set(std::int16_t{0});
    for (const auto* day : {"LastEscrowReview", "NextEscrowReview"})
        row[day].Set("");
    row["Assumable"].Set(false);
}

} // namespace

std::string_view StepFault(WizardStep step, const WizardEntries& entries) {
    switch (step) {
        case WizardStep::Lender:
            if (entries.newAccount && platform::Trim(entries.accountName).empty())
                return "A valid company name has not been entered.";
            break;
        case WizardStep::Terms:
            if (entries.origPV.IsZero()) return "Invalid loan amount entered.";
            if (entries.origTerm == 0) return "Invalid loan term entered.";
            break;
        case WizardStep::Details:
            if (!entries.firstDue.IsSet()) return "A valid start date has not been selected.";
            if (entries.loanNumber.empty()) return "A valid loan number has not been entered.";
            break;
        case WizardStep::Current:
            if (!entries.nextDue.IsSet()) return "A valid payment date has not been selected.";
            if (entries.currentPV.IsZero()) return "Invalid loan amount entered.";
            break;
        case WizardStep::Intro:
        case WizardStep::Last:
            break;
    }
    return {};
}

std::int32_t FinishWizard(const WizardEntries& entries) {
    platform::UnitOfWork unit(core::App().Connection);
    const std::int32_t idLender = entries.newAccount ? AddLender(entries) : entries.idAccount;
    const std::string_view company =
        platform::Trim(entries.newAccount ? entries.accountName : entries.lenderName);
    const std::string description = std::string(company) + " " + entries.loanNumber;
    const clsMortgage loan = LoanOf(entries, description);

    core::RowToWrite added("Mortgage", "IdMortgage");
    Recordset& row = added.row;
    row["Hide"].Set(false);
    row["Selected"].Set(false);
    StoreLoan(loan, row);
    row["DateUpdated"].Set(platform::Today().ToText());
    WriteUntold(row);
    row["IdMortgagee"].Set(idLender);
    row["AccountNumber"].Set(entries.loanNumber);
    row["Notes"].Set(kNote);
    SetMortgageStatus(row);
    row.Update();
    unit.Commit();
    if (entries.newAccount) core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    core::NotifyAll(core::kMortgage, core::kRecordsChanged, 0);
    return added.id;
}

} // namespace mortgages
