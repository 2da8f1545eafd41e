#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "leases/LeaseFixture.h"
#include "leases/RentLog.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// The books of one lease, charged up to today, 03/05/2024, so that what comes is the test's own.
class BooksTest : public testing::Test {
  protected:
    using Lines = std::vector<std::string>;

    BooksTest();
    ~BooksTest() override;

    static void Run(std::string_view sql);
    /// The first column of the first row as text; "null" for a null, "-" without a row.
    static std::string Ask(std::string_view sql);
    /// The rows of a select, fields separated by "|".
    static Lines Rows(std::string_view sql);
    /// Adds an open row of the ledger, described "AMOUNT on DAY"; answers its id.
    static std::int32_t Charge(platform::Date day, int units,
                               leases::RentFlags flags = leases::RentFlags::Ordinary,
                               core::TransactionClass rentClass = core::TransactionClass::Rent);
    /// The ledger by id: date, flags, amount, and + for a settled row, - for an open one.
    static Lines Ledger();

  private:
    support::TemporaryFolder folder_;
    BooksWithOneLease books_;
};

} // namespace tests
