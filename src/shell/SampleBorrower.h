#pragma once

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// One mortgage of the sample portfolio, with its owner's payments.
class SampleBorrower {
  public:
    explicit SampleBorrower(const store::SampleLoan& plan);

    /// Pays the open charges if this is a day of payment. Called for each day in order, with the
    /// clock set to it.
    void LiveThrough(platform::Date day);
    /// Stores the owner's present equity in the building.
    void NoteEquity() const;

  private:
    void Pay() const;
    void PlanNextPayment();

    store::SampleLoan plan_;
    /// The next day of payment; unset once nothing more will be paid.
    platform::Date nextPayment_;
};

} // namespace shell
