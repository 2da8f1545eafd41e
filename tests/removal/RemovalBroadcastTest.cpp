#include <gmock/gmock.h>

#include "core/MessagePump.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "platform/database/Connection.h"
#include "removal/DeleteRecord.h"
#include "removal/PortfolioFixture.h"

namespace {

using removal::Confirm;
using removal::DeleteRecord;
using removal::Tell;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class RemovalBroadcast : public tests::Portfolio {
  protected:
    std::vector<std::pair<core::RecordKind, std::int16_t>> heard_;
    core::NotifyToken token_{[this](core::RecordKind kind, std::int16_t action, std::int32_t) {
        heard_.emplace_back(kind, action);
    }};
};

TEST_F(RemovalBroadcast, TellsTheKindsOfWhatWentOnceKept) {
    EXPECT_TRUE(DeleteRecord(core::kUnit, 202, Confirm::DontAsk));
    // The lease with the words it set and its ledger, the leases as a whole, the building with its
    // owners, the unit.
    EXPECT_THAT(heard_,
                ElementsAre(Pair(core::kUnit, 1), Pair(core::kTenant, 1), Pair(core::kRentLog, 1),
                            Pair(core::kLease, 1), Pair(core::kLease, 2), Pair(core::kOwner, 1),
                            Pair(core::kBuilding, 1)));
}

TEST_F(RemovalBroadcast, ComesWhenTheRemovalIsOnDisk) {
    std::vector<std::string> unitsOnDisk;
    const core::NotifyToken token([&](core::RecordKind, std::int16_t, std::int32_t) {
        platform::Connection another;
        another.Open(core::App().DbFile, platform::OpenMode::ReadOnly);
        unitsOnDisk.push_back(another.Scalar("SELECT Count(*) FROM Unit")->AsText());
    });
    EXPECT_TRUE(DeleteRecord(core::kBuilding, 100, Confirm::DontAsk));
    ASSERT_FALSE(unitsOnDisk.empty());
    EXPECT_THAT(unitsOnDisk, testing::Each("3"));
}

TEST_F(RemovalBroadcast, LetsOtherWorkRunOnlyWhereNoneIsUnderWay) {
    int runs = 0;
    core::SetMessagePump([&] { ++runs; });
    {
        platform::UnitOfWork larger(core::App().Connection);
        removal::RemoveRecord(core::kRoom, 500);
        EXPECT_EQ(0, runs);
        EXPECT_THAT(heard_, IsEmpty()) << "not kept yet";
        larger.Commit();
        EXPECT_THAT(heard_, ElementsAre(Pair(core::kRoom, 1)));
    }
    removal::RemoveRecord(core::kRoom, 501);
    EXPECT_EQ(1, runs);
    core::SetMessagePump({});
}

TEST_F(RemovalBroadcast, IsLeftOutSilently) {
    EXPECT_TRUE(DeleteRecord(core::kTenant, 300, Confirm::DontAsk, Tell::Nobody));
    removal::RemoveRecord(core::kLease, 701, Tell::Nobody);
    EXPECT_THAT(heard_, IsEmpty());
}

/// A statement in the middle of a removal fails: the table of the unit's rooms doesn't exist.
class BrokenRemoval : public RemovalBroadcast {
  protected:
    BrokenRemoval() { core::App().Connection.RunScript("ALTER TABLE Room RENAME TO RoomNoMore"); }
};

TEST_F(BrokenRemoval, KeepsAndTellsWhatWasDoneBeforeTheFailure) {
    EXPECT_THROW(DeleteRecord(core::kUnit, 200, Confirm::DontAsk), platform::DatabaseError);
    EXPECT_EQ("0", Ask("SELECT Count(*) FROM Lease WHERE IdLease = 700"));
    EXPECT_EQ("0", Ask("SELECT Count(*) FROM Deposit WHERE IdUnit = 200"));
    EXPECT_EQ("2", Ask("SELECT Count(*) FROM Appliance WHERE IdUnit = 200"));
    EXPECT_EQ("1", Ask("SELECT Count(*) FROM Unit WHERE IdUnit = 200"));
    EXPECT_FALSE(core::App().Connection.InUnitOfWork());
    EXPECT_THAT(heard_, testing::Contains(Pair(core::kLease, 1)));
}

// As on a full disk: the engine takes the whole unit of work back.
TEST_F(RemovalBroadcast, IsLeftOutAndNothingGoneWhenTheEngineGivesUp) {
    core::App().Connection.RunScript(
        "CREATE TRIGGER disk_full BEFORE DELETE ON Room "
        "BEGIN SELECT RAISE(ROLLBACK, 'disk full'); END");
    EXPECT_THROW(DeleteRecord(core::kBuilding, 100, Confirm::DontAsk), platform::DatabaseError);
    EXPECT_THAT(Changes(), IsEmpty());
    EXPECT_THAT(heard_, IsEmpty());
}

} // namespace
