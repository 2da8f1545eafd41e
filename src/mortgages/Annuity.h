#pragma once

namespace mortgages {

/// The formulas of level payments at one rate per period, paid at the end of each period. Amounts
/// received are positive, amounts paid negative. Throws Error if there is no result (a payment that
/// never pays off the loan, no periods), OverflowError if it isn't a number.
class Annuity {
  public:
    /// `rate` is a fraction per period; 0 is a loan without interest.
    explicit Annuity(double rate);

    /// Returns the formulas at the rate per period, up to 1, at which `payment` pays off
    /// `presentValue` in `periods`.
    static Annuity OfPayment(double periods, double payment, double presentValue);

    double Rate() const { return rate_; }

    /// Returns the payment that pays off `presentValue` in `periods`.
    double Pmt(double periods, double presentValue) const;
    /// Returns the number of periods, with a fraction, in which `payment` pays off `presentValue`.
    double NPer(double payment, double presentValue) const;
    /// Returns the balance while `periods` such payments are still to come; 0 after the last one.
    double PV(double periods, double payment) const;
    /// Return the interest and the principal in the first payment.
    double FirstIPmt(double presentValue) const;
    double FirstPPmt(double periods, double presentValue) const;

  private:
    double rate_;
    double logGrowth_; ///< the logarithm of one period's growth
};

} // namespace mortgages
