#include "leases/RentLog.h"

#include "leases/BooksTest.h"

namespace tests {

namespace {

using platform::Currency;
using platform::Date;

class RentLog : public BooksTest {};

TEST_F(RentLog, WritesNoRowOfZeroAndRewritesTheRowItIsGiven) {
    leases::RentLogEntry entry;
    entry.idLease = kLeaseId;
    entry.datePosted = Date(2024, 1, 1);
    EXPECT_EQ(leases::WriteRentLog(entry), 0);
    EXPECT_EQ(leases::WriteRentLog(entry, 55), 55);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "0");

    entry.amount = Currency::FromUnits(10);
    const std::int32_t id = leases::WriteRentLog(entry);
    entry.amount = Currency::FromUnits(20);
    EXPECT_EQ(leases::WriteRentLog(entry, id), id);
    EXPECT_NE(leases::WriteRentLog(entry, 4711), 4711) << "a deleted row is written again";
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Amount = 20"), "2");
}

} // namespace

} // namespace tests
