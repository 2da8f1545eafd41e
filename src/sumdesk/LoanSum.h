#pragma once

#include <optional>
#include <string>

#include "platform/values/Errors.h"

namespace sumdesk {

enum class LoanField { Amount, Rate, Term, Payment, Paid };

/// An entry that can't be used; the text tells the user why.
class LoanError : public platform::Error {
  public:
    LoanError(const std::string& text, LoanField field) : platform::Error(text), field_(field) {}
    LoanField Field() const { return field_; }

  private:
    LoanField field_;
};

/// The entries as they were typed. Each may be a sum, such as 30 × 12. The one that is to be found
/// is ignored.
struct LoanEntries {
    LoanField find = LoanField::Payment; ///< Payment, Rate or Term
    std::string amount;
    std::string rate;    ///< percent a year
    std::string term;    ///< months
    std::string payment; ///< a month
    std::string paid;    ///< the payments after which the balance is wanted; may be blank
};

struct LoanAnswer {
    double amount = 0;
    double rate = 0;         ///< percent a year
    double periods = 0;      ///< months until it is paid off, with a fraction
    int term = 0;            ///< payments, the last for a fraction of a month too
    double payment = 0;      ///< a month
    double lastPayment = 0;  ///< differs from the others if a term was found
    std::optional<int> paid; ///< payments after which the balance is
    double balance = 0;      ///< then
};

/// Works out a loan of level payments at the end of each month. Throws LoanError for an entry that
/// can't be used, and if there is no such loan.
LoanAnswer WorkOutLoan(const LoanEntries& entries);

/// Returns the payment, rate or term of an answer as its box shows it.
std::string FoundText(const LoanAnswer& answer, LoanField field);
/// Returns the loan with what follows from it, a line each, the last without a line feed.
std::string Describe(const LoanAnswer& answer);

} // namespace sumdesk
