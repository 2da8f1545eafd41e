#pragma once

#include <cstdint>
#include <memory>
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
/// answers questions about it. It knows what should happen by the terms, and nothing of payments
/// made. A changed term takes effect in the schedule after the next ReCalc.
///
/// Periods count from 1. In period arguments 0 usually means the current one; the result for a
/// period outside the schedule is 0. Rates and shares are percent in the properties and fractions
/// everywhere else.
class clsMortgage {
  public:
    /// Creates an ordinary loan that begins this month, with its schedule.
    clsMortgage();

    /// Rebuilds the schedule. Throws Error if the loan can't be calculated; the schedule then ends
    /// where it failed.
    void ReCalc();
    /// Sets up a loan from scratch. A `payment` other than 0 determines `periods`, otherwise
    /// `periods` determines the payment; for an interest-only loan `payment` returns a year's
    /// interest, negative. `rate` is a fraction.
    void CreateMtg(std::string_view firstDue, double presentValue, double& periods, double rate,
                   double& payment, bool interestOnly, bool adjustable);
    /// Aligns the schedule with a balance (and a rate, a fraction) known for the period of `date`:
    /// if it is lower than scheduled, the difference counts as extra principal of the period
    /// before. A higher balance, and the first and last period, change nothing.
    void BalanceMtg(platform::Date date, double balance, double rate);

    // Loading sets the stored values directly, ignoring the limits of the properties; a null leaves
    // its member unchanged. The caller calls ReCalc.

    /// Reads the mortgage of this id; returns false if there is none.
    bool LoadMtg(std::int32_t idMortgage);
    /// Reads the current row, skipping every field that fails; always returns true. The row's
    /// balloon flag is not read: a loan loaded this way runs on past its balloon.
    bool LoadRS(platform::Recordset& row);
    /// Writes the mortgage of this id, a new row if there is none; id 0 writes nothing. Its balance
    /// is the one after the current period. Throws on failure.
    void SaveMtg(std::int32_t idMortgage) const;
    /// Copies the fields to the current row, which the caller writes. Its balance is the one before
    /// the current period; past the schedule there is no due date and no balance.
    void SaveRS(platform::Recordset& row) const;

    /// Returns the schedule as a table, which keeps a copy of it.
    std::unique_ptr<AmortGrid> ShowGrid(const AmortView& view) const;
    /// Returns the schedule as a report prints it: a row per period, and the titles and column
    /// formats separated by "|". `full` has sixteen columns, otherwise eight.
    void GetAmortization(std::vector<std::vector<std::string>>& table, std::string& header,
                         std::string& format, bool full) const;

    /// Returns the extra principal entered for a period, 0 beyond the entries; for period 0, that
    /// of all periods.
    double GetXPRI(int period) const;
    /// Sets the extra principal of a period; a period beyond the entries is skipped.
    void SetXPri(int period, double amount);
    void ClearXPri();
    /// Raises the rates of an adjustable loan to the highest possible; does nothing for other
    /// loans.
    void SetMaxRates();
    /// Sets every period back to the first rate.
    void ClearRate();
    double GetRate(int period) const;
    /// Sets the rate (a fraction, at most 30 percent) of a period, from the second on, and of all
    /// later ones.
    void SetRate(int period, double rate);

    /// Returns the due date of the current period, unset outside the schedule.
    platform::Date NextDue() const;
    double GetPV(int period) const;
    /// Return the sums up to a period; beyond the end, up to the last one.
    double GetPriTTD(int period) const;
    double GetIntTTD(int period) const;
    /// Return the sums of a calendar year ("2026", empty for the present one), 0 if nothing falls
    /// due in it.
    double GetIntYTD(std::string_view year) const;
    double GetPriYTD(std::string_view year) const;
    double GetPeriods() const { return periods_; }
    int GetPeriodsRemaining() const { return periods_ - terms_.CurrentPeriod + 1; }
    /// Returns "Pending", "Current" or "Closed", by the period of `date`.
    std::string_view GetStatus(platform::Date date) const;
    platform::Currency GetPPMT(int period) const;
    platform::Currency GetPMT(int period) const;
    platform::Currency GetIPMT(int period) const;
    /// Returns the period of `date`'s calendar month, 0 outside the loan.
    int GetPeriod(platform::Date date) const;

    /// Return the rows of the schedule, and the terms as they are stored.
    const std::vector<AmortPeriod>& Schedule() const { return schedule_; }
    const LoanTerms& Terms() const { return terms_; }
    /// Returns the number of entries for extra principal and rates; there can be more than periods.
    int ArraySize() const { return arraySize_; }

    const std::string& Description() const { return terms_.Description; }
    void SetDescription(std::string_view text);
    std::int16_t CurrentPeriod() const { return terms_.CurrentPeriod; }
    void SetCurrentPeriod(int period);
    /// Moves to the next period, also beyond the end of the schedule: for a loan whose schedule
    /// isn't built.
    void AdvanceCurrentPeriod();
    double OrigPV() const { return terms_.OrigPV; }
    void SetOrigPV(double amount);
    double OrigPer() const { return terms_.OrigPer; }
    void SetOrigPer(double periods);
    double OrigRate() const { return terms_.OrigRate * 100; }
    /// Sets the original rate; if it differs from the present one, every period gets it.
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
    /// Returns the row of a period, the current one for 0; null outside the schedule.
    const AmortPeriod* Row(int period) const;
    const AmortPeriod* RowUpTo(int period) const;
    /// Returns the period by the calendar months since the first due date, within the loan or not.
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
