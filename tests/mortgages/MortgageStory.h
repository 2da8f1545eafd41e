#pragma once

#include <map>
#include <string>

#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "support/StoryPlayer.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// Lives through stories of one mortgage, whose fields `Field = value` are. The ledger's rows are
/// `date | category | period | total | flags`, by date. The events, where N counts the transactions
/// of the books from 1:
///
///   run to DATE                      the run of that day; every mortgage of the books must run
///   run all mortgages                answers what it posted and what failed
///   catch up, roll forward, reprocess, refresh
///   pay all; pay charges 1 2
///   edit payment N, only 1 2         or `only none`; the open charges follow those it settled
///   open payment NAME; open payment NAME of N; read again NAME; submit NAME
///   charges; charges of N            answers the charges and entries of the proposal, or of a
///   payment post payoff                      answers Posted or NotFound
///
/// and what a payment may be given: `extra A` (principal), `on no day`, `check
/// X`, `described X`, `from ID NAME`.
class MortgageStory : public testing::TestWithParam<support::Story>,
                      protected support::StoryPlayer {
  protected:
    MortgageStory();

    void Set(const std::string& field, const std::string& value) override;
    std::string Get(const std::string& field) override;
    Lines Ledger() override;

  private:
    void AddRuns();
    void AddPayments();

    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_;
    /// The payments on screens that are left open, by their names.
    std::map<std::string, mortgages::MortgagePayment> payments_;
};

} // namespace tests
