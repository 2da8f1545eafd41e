#include <algorithm>
#include <chrono>
#include <cmath>

#include "mortgages/Annuity.h"
#include "mortgages/clsMortgage.h"
#include "platform/values/Conversions.h"

namespace mortgages {

namespace {

using std::chrono::year_month_day;

/// Returns the date one month later. It counts from the date before, so a loan first due on the
/// 31st is due on the 28th from its first February on.
year_month_day MonthAfter(year_month_day day) {
    const year_month_day next = day + std::chrono::months(1);
    if (next.ok()) return next;
    return next.year() / next.month() / std::chrono::last;
}

/// Builds the rows of a schedule one after another.
class ScheduleBuilder {
  public:
    ScheduleBuilder(const LoanTerms& terms, int periods, const std::vector<double>& xPri,
                    const std::vector<double>& xRate)
        : terms_(terms),
          periods_(periods),
          xPri_(xPri),
          xRate_(xRate),
          day_(platform::Date::Parse(terms.FirstDue).Calendar()),
          annuity_(0),
          balance_(terms.OrigPV),
          term_(terms.OrigPer) {}

    /// Fills row `i`; `before` is null for the first. Returns true if it pays off the loan.
    bool Fill(int i, AmortPeriod& row, const AmortPeriod* before) {
        ++sinceChange_;
        if (before != nullptr) day_ = MonthAfter(day_);
        row.Due = DueText(day_);
        row.BeginBal = before == nullptr ? terms_.OrigPV : before->EndBal;
        row.Rate = RateOf(i);
        Split(row);
        const double extra = xPri_[static_cast<std::size_t>(i) - 1];
        row.XPri = extra != 0 ? extra : terms_.xPriAll;
        if (row.XPri != 0) extraPaid_ = true;
        Sum(row, before);
        if (terms_.PPM) AddPenalty(i, row, before);
        row.EndBal = row.BeginBal - (row.Pri + row.XPri);
        if (terms_.ARM && i < periods_ && RateOf(i + 1) != row.Rate) Reamortise(row);
        if (row.EndBal < 0) CutOvershoot(row);
        return row.EndBal == 0;
    }

  private:
    double RateOf(int i) const {
        return terms_.ARM ? xRate_[static_cast<std::size_t>(i) - 1] : terms_.OrigRate;
    }

    void Split(AmortPeriod& row) {
        const double rate = row.Rate / 12;
        if (terms_.IntOnly) {
            row.Pmt = rate * balance_;
            row.Int = row.Pmt;
            row.Pri = 0;
            return;
        }
        if (stale_ || rate != annuity_.Rate()) {
            annuity_ = Annuity(rate);
            payment_ = -annuity_.Pmt(term_, balance_);
            stale_ = false;
        }
        row.Pmt = payment_;
        const double left = PeriodsLeft(row);
        row.Pri = -annuity_.FirstPPmt(left, row.BeginBal);
        row.Int = -annuity_.FirstIPmt(row.BeginBal);
    }

    /// Returns the periods left at this balance and payment. Until extra principal shortens the
    /// term, they are counted: the formula would give the same with a rounding error that grows
    /// from row to row on a long and expensive loan.
    double PeriodsLeft(const AmortPeriod& row) const {
        if (!extraPaid_) return term_ - (sinceChange_ - 1);
        return annuity_.NPer(row.Pmt, -row.BeginBal);
    }

    static bool StartsYear(const AmortPeriod& row, const AmortPeriod* before) {
        return before == nullptr || row.Due.IsJanuary();
    }

    static void Sum(AmortPeriod& row, const AmortPeriod* before) {
        static const AmortPeriod kNothing;
        const AmortPeriod& total = before == nullptr ? kNothing : *before;
        const AmortPeriod& year = StartsYear(row, before) ? kNothing : *before;
        const double principal = row.Pri + row.XPri;
        row.PmtYTD = year.PmtYTD + row.Pmt;
        row.PriYTD = year.PriYTD + principal;
        row.IntYTD = year.IntYTD + row.Int;
        row.PmtTTD = total.PmtTTD + row.Pmt;
        row.PriTTD = total.PriTTD + principal;
        row.IntTTD = total.IntTTD + row.Int;
    }

    /// Adds a penalty, at most one per calendar year.
    void AddPenalty(int i, AmortPeriod& row, const AmortPeriod* before) {
        row.PctPri = (row.Pri + row.XPri) / terms_.OrigPV;
        row.PctPriYTD = row.PctPri;
        if (StartsYear(row, before)) {
            penaltyDone_ = false;
        } else {
            row.PctPriYTD = before->PctPriYTD + row.PctPri;
        }
        const bool applies = terms_.PPMPer == 0 || i <= terms_.PPMPer;
        if (applies && row.PctPriYTD >= terms_.PPMTrigger && !penaltyDone_) {
            row.Penalty = terms_.PPMPct * terms_.OrigPV;
            penaltyDone_ = true;
        }
    }

    /// Recalculates the payment for the next rate: from the next row on, the balance is paid off
    /// over the remaining periods of the original term.
    void Reamortise(const AmortPeriod& row) {
        balance_ = row.EndBal;
        term_ -= sinceChange_;
        sinceChange_ = 0;
        extraPaid_ = false;
        stale_ = true;
    }

    /// Cuts the last payment down to the remaining balance. The sums keep the amounts before the
    /// cut.
    static void CutOvershoot(AmortPeriod& row) {
        if (row.BeginBal < row.Pri) {
            row.Pri = row.BeginBal;
            row.XPri = 0;
        } else {
            row.XPri = row.BeginBal - row.Pri;
        }
        row.Pmt = row.Pri + row.Int;
        row.EndBal = 0;
    }

    const LoanTerms& terms_;
    int periods_;
    const std::vector<double>& xPri_;
    const std::vector<double>& xRate_;
    year_month_day day_;

    Annuity annuity_;
    double payment_ = 0; ///< level until the rate changes
    bool stale_ = true;
    double balance_; ///< at the last change of the rate, with the periods left of the term then
    double term_;
    int sinceChange_ = 0;
    bool extraPaid_ = false;
    bool penaltyDone_ = false;
};

} // namespace

void clsMortgage::ReCalc() {
    terms_.OrigPmt = terms_.IntOnly
                         ? terms_.OrigRate / 12 * terms_.OrigPV
                         : -Annuity(terms_.OrigRate / 12).Pmt(terms_.OrigPer, terms_.OrigPV);
    const bool balloon = terms_.Balloon && terms_.BalloonPer > 0;
    const double length =
        balloon ? std::min<double>(terms_.BalloonPer, terms_.OrigPer) : terms_.OrigPer;
    periods_ = platform::RoundToInt16(length);
    GrowArrays();

    schedule_.clear();
    schedule_.reserve(static_cast<std::size_t>(std::max<int>(periods_, 0)));
    ScheduleBuilder builder(terms_, periods_, xPri_, xRate_);
    for (int i = 1; i <= periods_; ++i) {
        const AmortPeriod* before = schedule_.empty() ? nullptr : &schedule_.back();
        AmortPeriod& row = schedule_.emplace_back();
        const bool paidOff = builder.Fill(i, row, before);
        if (paidOff) periods_ = static_cast<std::int16_t>(i);
    }
    terms_.BalloonPmt = balloon && !schedule_.empty() ? schedule_.back().EndBal : 0;
}

void clsMortgage::GrowArrays() {
    const auto held = static_cast<std::size_t>(arraySize_);
    const auto wanted = static_cast<std::size_t>(std::max<int>(periods_, arraySize_));
    // Entries beyond the held ones don't count, and a loaded list can be shorter than these.
    if (xRate_.size() > held && wanted > held) xRate_.resize(held);
    const double rate = xRate_.empty() ? terms_.OrigRate : xRate_.back();
    if (xRate_.size() < wanted) xRate_.resize(wanted, rate);
    if (xPri_.size() < wanted || wanted > held) xPri_.resize(wanted, 0);
    arraySize_ = static_cast<int>(wanted);
}

} // namespace mortgages
