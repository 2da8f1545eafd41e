#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mortgages/AmortPeriod.h"
#include "mortgages/LoanTerms.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

class AmortGrid;
struct AmortView;

/// The calculator of one loan: holds its terms, expands them into a schedule of monthly periods and
/// answers questions about it. It knows what the terms say should happen, and nothing of payments
/// made. A change of a term shows in the schedule after the next ReCalc.
///
/// Periods count from 1. Where a period is asked for, 0 mostly means the current one; what lies
/// outside the schedule is 0. Rates and shares are percent in the properties and fractions
/// everywhere else.
class clsMortgage {
  public:
    /// An ordinary loan that begins this month, with its schedule.
    clsMortgage();

    /// Rebuilds the schedule. A loan that can't be reckoned is an Error; the schedule then stands
    /// as far as it was built.
    void ReCalc();
    /// Sets up a loan from scratch. A `payment` that isn't 0 decides on `periods`, otherwise
    /// `periods` on the payment; of a loan of interest alone the payment comes back as a year's
    /// interest, negative. `rate` is a fraction.
    void CreateMtg(std::string_view firstDue, double presentValue, double& periods, double rate,
                   double& payment, bool interestOnly, bool adjustable);
    /// Aligns the schedule with a balance (and a rate, a fraction) known for the period of `date`:
    /// what it is lower than scheduled counts as extra principal of the period before. A balance
    /// that is higher, and the first and the last period, change nothing.
    void BalanceMtg(platform::Date date, double balance, double rate);

    // Loading puts the stored values straight in, past the limits of the properties; a null keeps
    // what was there. ReCalc is left to the caller.

    /// Reads the mortgage of this id; false without one.
    bool LoadMtg(std::int32_t idMortgage);
    /// Reads the current row, passing over every field that fails; always true. The row's flag of a
    /// balloon is not looked for: a loan loaded so runs on past its balloon.
    bool LoadRS(platform::Recordset& row);
    /// Writes the mortgage of this id, a new row if there is none. Its balance is the one after the
    /// current period. Failures are thrown.
    void SaveMtg(std::int32_t idMortgage) const;
    /// Puts the fields into the current row, which the caller writes. Its balance is the one before
    /// the current period; past the schedule there is no due date and nothing left.
    void SaveRS(platform::Recordset& row) const;

    /// The schedule as a table to look at. It must not outlive the loan nor its schedule.
    AmortGrid ShowGrid(const AmortView& view) const;
    /// The schedule as a report prints it: a row a period, the titles and the column formats parted
    /// by "|". `full` is sixteen columns, otherwise eight.
    void GetAmortization(std::vector<std::vector<std::string>>& table, std::string& header,
                         std::string& format, bool full) const;

    /// The extra principal entered for a period, 0 past the entries; of period 0 that of all.
    double GetXPRI(int period) const;
    /// Sets it; a period past the entries is passed over.
    void SetXPri(int period, double amount);
    void ClearXPri();
    /// The most that the rates of an adjustable loan can rise to, as its own; nothing otherwise.
    void SetMaxRates();
    /// Every period back at the first rate.
    void ClearRate();
    double GetRate(int period) const;
    /// Sets the rate (a fraction, at most 30 percent) of a period from the second on, and of all
    /// after it.
    void SetRate(int period, double rate);

    /// The due date of the current period, unset outside the schedule.
    platform::Date NextDue() const;
    double GetPV(int period) const;
    /// The sums up to a period; past the end those of the last one.
    double GetPriTTD(int period) const;
    double GetIntTTD(int period) const;
    /// The sums of a calendar year ("2026", empty for the present one), 0 where nothing falls due.
    double GetIntYTD(std::string_view year) const;
    double GetPriYTD(std::string_view year) const;
    double GetPeriods() const { return periods_; }
    int GetPeriodsRemaining() const { return periods_ - terms_.CurrentPeriod + 1; }
    /// "Pending", "Current" or "Closed", by the period of `date`.
    std::string_view GetStatus(platform::Date date) const;
    platform::Currency GetPPMT(int period) const;
    platform::Currency GetPMT(int period) const;
    platform::Currency GetIPMT(int period) const;
    /// The period that the calendar month of `date` is, 0 outside the loan's.
    int GetPeriod(platform::Date date) const;

    /// The rows of the schedule, and the terms as they are kept.
    const std::vector<AmortPeriod>& Schedule() const { return schedule_; }
    const LoanTerms& Terms() const { return terms_; }
    /// The entries of extra principal and rates; there can be more than periods.
    int ArraySize() const { return arraySize_; }

    const std::string& Description() const { return terms_.Description; }
    void SetDescription(std::string_view text);
    std::int16_t CurrentPeriod() const { return terms_.CurrentPeriod; }
    void SetCurrentPeriod(int period);
    /// On to the next period, also past the schedule's last: for a loan whose schedule isn't built.
    void AdvanceCurrentPeriod();
    double OrigPV() const { return terms_.OrigPV; }
    void SetOrigPV(double amount);
    double OrigPer() const { return terms_.OrigPer; }
    void SetOrigPer(double periods);
    double OrigRate() const { return terms_.OrigRate * 100; }
    /// A rate that differs from the present one becomes every period's.
    void SetOrigRate(double percent);
    double OrigPmt() const { return terms_.OrigPmt; }
    const std::string& FirstDue() const { return terms_.FirstDue; }
    void SetFirstDue(std::string_view text);
    bool IntOnly() const { return terms_.IntOnly; }
    void SetIntOnly(bool on) { terms_.IntOnly = on; }
    bool Balloon() const { return terms_.Balloon; }
    void SetBalloon(bool on) { terms_.Balloon = on; }
    std::int16_t BalloonPer() const { return terms_.BalloonPer; }
    void SetBalloonPer(std::int16_t periods) { terms_.BalloonPer = periods; }
    double BalloonPmt() const { return terms_.BalloonPmt; }
    bool PPM() const { return terms_.PPM; }
    void SetPPM(bool on) { terms_.PPM = on; }
    std::int16_t PPMPer() const { return terms_.PPMPer; }
    void SetPPMPer(std::int16_t periods) { terms_.PPMPer = periods; }
    double PPMPct() const { return terms_.PPMPct * 100; }
    void SetPPMPct(double percent);
    double PPMTrigger() const { return terms_.PPMTrigger * 100; }
    void SetPPMTrigger(double percent);
    bool ARM() const { return terms_.ARM; }
    void SetARM(bool on) { terms_.ARM = on; }
    std::int16_t ARMLockedPer() const { return terms_.ARMLockedPer; }
    void SetARMLockedPer(std::int16_t periods);
    std::int16_t ARMAdjPer() const { return terms_.ARMAdjPer; }
    void SetARMAdjPer(std::int16_t periods);
    double ARMLifeCap() const { return terms_.ARMLifeCap * 100; }
    void SetARMLifeCap(double percent);
    double ARMPerCap() const { return terms_.ARMPerCap * 100; }
    void SetARMPerCap(double percent);

  private:
    /// The row of a period, the current one's for 0; null outside the schedule.
    const AmortPeriod* Row(int period) const;
    const AmortPeriod* RowUpTo(int period) const;
    /// The period by the calendar months since the first due date, wherever that is.
    int PeriodOf(platform::Date date) const;
    void GrowArrays();

    LoanTerms terms_;
    std::int16_t periods_ = 0;
    int arraySize_ = 0;
    std::vector<double> xPri_;
    std::vector<double> xRate_;
    std::vector<AmortPeriod> schedule_;
};

} // namespace mortgages
