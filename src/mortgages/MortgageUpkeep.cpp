#include "mortgages/MortgageUpkeep.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "mortgages/ExtraPrincipal.h"
#include "mortgages/MortgageLog.h"
#include "mortgages/mMortgage.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace mortgages {

using platform::Currency;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

constexpr double kHalfACent = 0.005;

} // namespace

void StoreLoan(const clsMortgage& mortgage, Recordset& row) {
    const bool keepsBalloon = FlagOf(row["BalloonMtg"]) && !mortgage.Balloon();
    mortgage.SaveRS(row);
    if (keepsBalloon) {
        clsMortgage withBalloon = mortgage;
        withBalloon.SetBalloon(true);
        withBalloon.ReCalc();
        row["BalloonMtg"].Set(true);
        row["BalloonPmt"].Set(withBalloon.BalloonPmt());
    }
    row["CurrentPPmt"].Set(mortgage.GetPPMT(0).ToDouble());
    row["CurrentIPmt"].Set(mortgage.GetIPMT(0).ToDouble());
}

void SettleRemainder(clsMortgage& mortgage) {
    const int paid = mortgage.CurrentPeriod() - 1;
    const double left = mortgage.GetPV(0);
    if (paid < 1 || left <= 0 || left >= kHalfACent) return;
    // If it exceeds the balance, the schedule cuts it to what pays off the loan.
    const double extra = mortgage.Schedule()[static_cast<std::size_t>(paid) - 1].XPri;
    mortgage.SetXPri(paid, extra + kHalfACent);
    mortgage.ReCalc();
}

void RefreshMortgage(std::int32_t idMortgage) {
    UnitOfWork unit(core::App().Connection);
    Recordset row = core::Write("SELECT * FROM Mortgage WHERE IdMortgage = ?", {idMortgage});
    if (row.Eof()) return;

    clsMortgage mortgage;
    mortgage.LoadRS(row);
    mortgage.ReCalc();
    SettleRemainder(mortgage);
    StoreLoan(mortgage, row);
    UpdateMortgage(row, RunMode::CatchUp);
    unit.Commit();
}

PayoffResult PostPayoff(std::int32_t idMortgage) {
    UnitOfWork unit(core::App().Connection);
    core::Execute("DELETE * FROM MortgageLog WHERE (IdMortgage = ?) AND (IdTransaction = 0)",
                  {idMortgage});
    Recordset row = core::Read(
        "SELECT CurrentPeriod, CurrentPV, CurrentPPmt, CurrentIpmt FROM Mortgage "
        "WHERE IdMortgage = ?",
        {idMortgage});
    if (row.Eof() || row["CurrentPeriod"].IsNull() || row["CurrentPV"].IsNull()) {
        return PayoffResult::NotFound;
    }
    const double balance = row["CurrentPV"].AsDouble();
    const double principal = NumberOf(row["CurrentPPmt"]);
    MortgageLogEntry payoff;
    payoff.idMortgage = idMortgage;
    payoff.period = row["CurrentPeriod"].AsInteger();
    payoff.datePosted = platform::Today();
    payoff.category = kCategoryPayoff;
    payoff.principal = Currency::FromDouble(principal);
    payoff.payDown =
        Currency::FromDouble(balance - principal) - BookedExtra(idMortgage, payoff.period);
    payoff.interest = Currency::FromDouble(NumberOf(row["CurrentIpmt"]));
    payoff.description = kCategoryPayoff;
    payoff.flags = LogFlags::BasePayment;
    WriteMortgageLog(payoff);
    unit.Commit();
    core::NotifyAll(core::kMortgageLog, core::kRecordsChanged, 0);
    return PayoffResult::Posted;
}

bool HasPayoffAfter(std::int32_t idMortgage, std::int32_t idMortgageLog) {
    return core::Exists(
        "SELECT IdMortgageLog FROM MortgageLog WHERE (IdMortgage = ?) AND (Category = ?) AND "
        "(IdMortgageLog > ?)",
        {idMortgage, kCategoryPayoff, idMortgageLog});
}

} // namespace mortgages
