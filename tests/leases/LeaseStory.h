#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "leases/AmountPayment.h"
#include "leases/LeaseFixture.h"
#include "leases/ReturnPayment.h"
#include "support/StoryPlayer.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// Lives through stories of one lease. `Field = value` are fields of the lease, and `unit` and
/// `tenant` are their statuses; the ledger's rows are `date | class.flags | 'category' | amount |
/// description`, with ` | paid` once a transaction has settled them. The events, where N counts the
/// transactions of the lease from 1:
///
///   today DATE, daily DATE           the program starts on that day, or every day up to it
///   roll forward, reprocess, run all leases
///   charge rent|fee|subsidy|deposit|option AMOUNT on DATE
///   pay rent|subsidy|deposit         all that is open of the class
///   pay amount A, of CLASS, the part counts as paid
///   edit payment N                   its charges are ticked, and the open ones are listed
///   open payment NAME of CLASS, amount A; open payment NAME of N; submit NAME
///   outlook of CLASS|amount A|payment N; charges of CLASS|N; preview amount A;
///   read again NAME
///   return payment N, fee A, on DATE; open return NAME of N; submit return NAME
///   preview return of N; rows of NAME; marks of NAME; errors of return N; delete payment N, with
///   its charges; delete lease settle from credit yes|no; credit of CLASS; paid; owed; the books
///   balance charge deposits give notice, N days; break lease; cancel notice; renew lease save new
///   lease, FIELD = value; save lease, FIELD = value tab NAME; split N; split N into A and B, the
///   second stays rent   N counts the charges from 1 store balances; set rent status; read settings
///
/// and what a payment may be given: `only 1 3` (the ticked charges; or `only none`), `first 2 1`
/// (the order), `on DATE`, `check X`, `as TYPE`, `from NAME`, `from account ID`, `to ID|NAME`,
/// `described X`, `without a run`.
class LeaseStory : public testing::TestWithParam<support::Story>, protected support::StoryPlayer {
  protected:
    LeaseStory();
    ~LeaseStory() override;

    void Set(const std::string& field, const std::string& value) override;
    std::string Get(const std::string& field) override;
    Lines Ledger() override;

  private:
    void AddCalendar();
    void AddPayments();
    void AddQuestions();
    void AddReturns();
    void AddScreens();

    support::TemporaryFolder folder_;
    BooksWithOneLease books_;
    /// The payments and returns on screens that are left open, by their names. A payment by amount
    /// has received something.
    std::map<std::string, leases::AmountPayment> payments_;
    std::map<std::string, leases::PaymentReturn> returns_;
};

} // namespace tests
