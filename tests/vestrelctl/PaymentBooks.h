#pragma once

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

/// The payment books of the sessions: a tenant, three accounts and a lease of 1,000.00 a month,
/// charged up to 12/31/2023.
class PaymentBooks : public Vestrelctl {
  protected:
    PaymentBooks() {
        EXPECT_EQ(Run("init " + Books()).status, 0);
        // The settings come with the first run.
        EXPECT_EQ(Run("--today 12/31/2023 " + OnBooks() + "update").status, 0);
        const Outcome made =
            Run(OnBooks() + "sql -", ReadFile(VESTREL_TEST_DATA "/payment-books.sql"));
        EXPECT_EQ(made.status, 0) << made.errors;
    }
};

} // namespace tests
