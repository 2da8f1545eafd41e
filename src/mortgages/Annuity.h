#pragma once

namespace mortgages {

/// The formulas of level payments at one rate per period, paid at each period's end. What is
/// received is positive and what is paid negative, as is usual. A result that isn't there (a
/// payment that never pays the loan off, no periods) is an Error, one that is no number an
/// OverflowError.
class Annuity {
  public:
    /// `rate` is a fraction per period; 0 is a loan without interest.
    explicit Annuity(double rate);

    double Rate() const { return rate_; }

    /// The payment of each of `periods` that pays off `presentValue`.
    double Pmt(double periods, double presentValue) const;
    /// The periods that `payment` needs for `presentValue`, with their fraction.
    double NPer(double payment, double presentValue) const;
    /// Of the first such payment, what goes to interest and what to principal.
    double FirstIPmt(double presentValue) const;
    double FirstPPmt(double periods, double presentValue) const;

  private:
    double rate_;
    double logGrowth_; ///< the logarithm of one period's growth
};

} // namespace mortgages
