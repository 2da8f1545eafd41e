#include <gmock/gmock.h>

#include <functional>

#include "core/BatchRun.h"
#include "core/Configuration.h"
#include "core/CoreFixture.h"
#include "core/RecordKinds.h"
#include "core/RunHeard.h"
#include "core/Session.h"
#include "core/Startup.h"
#include "platform/database/StatementProbe.h"

namespace {

using platform::Connection;
using platform::Recordset;

/// Books on which a second program works, at the worst moment: just before ours begins to write.
class TwoPrograms : public tests::CoreBooks {
  protected:
    TwoPrograms() { other_.Open(core::App().DbFile); }
    ~TwoPrograms() override { platform::SetStatementProbe({}); }

    void BeforeWeWrite(std::function<void()> work) {
        platform::SetStatementProbe([work = std::move(work)] {
            const auto now = work; // the probe that holds it is taken away
            platform::SetStatementProbe({});
            now();
        });
    }

    Connection other_;
};

TEST_F(TwoPrograms, NeverTakeTheSameIdentifier) {
    Run("INSERT INTO Configuration (NextId) VALUES (41)");
    BeforeWeWrite([&] { other_.Execute("UPDATE Configuration SET NextId = NextId + 5"); });
    EXPECT_EQ(core::NextId(), 46);
    EXPECT_EQ(Ask("SELECT NextId FROM Configuration"), "47");
}

TEST_F(TwoPrograms, MakeTheSettingsOnce) {
    BeforeWeWrite([&] { other_.Execute("INSERT INTO Configuration (NextId) VALUES (7)"); });
    core::LoadBooks();
    EXPECT_EQ(Ask("SELECT Count(*) FROM Configuration"), "1");
    EXPECT_EQ(core::NextId(), 7);
}

/// Posts a row if the lease wasn't updated today, as the true run does.
std::vector<core::PostedRow> ChargeOnce(Recordset& lease) {
    if (lease["DateUpdated"].AsText() == "05/17/2024") return {};
    platform::UnitOfWork unit(core::App().Connection);
    core::App().Connection.Execute("INSERT INTO RentLog (IdLease, Amount) VALUES (?, 1)",
                                   {lease["IdLease"].Value()});
    lease["DateUpdated"].Set("05/17/2024");
    lease.Update();
    unit.Commit();
    return {{platform::Date(2024, 5, 17), "Rent", platform::Currency::FromUnits(1)}};
}

TEST_F(TwoPrograms, BringEachRecordUpToDateOnce) {
    for (const int id : {1, 2, 3, 4}) {
        Run("INSERT INTO Lease (IdLease, DateUpdated) VALUES (" + std::to_string(id) +
            ", '05/16/2024')");
    }
    BeforeWeWrite([&] {
        other_.Execute("INSERT INTO RentLog (IdLease, Amount) VALUES (2, 1)");
        other_.Execute("UPDATE Lease SET DateUpdated = '05/17/2024' WHERE IdLease = 2");
        other_.Execute("UPDATE Lease SET Rent = 7 WHERE IdLease = 3");
        other_.Execute("DELETE FROM Lease WHERE IdLease = 4");
    });
    tests::RunHeard run;
    core::UpdateEach(core::kLease, "SELECT * FROM LEASE", "IdLease", ChargeOnce, run);
    EXPECT_THAT(run.posted, testing::ElementsAre("2 1 lease 1: Rent 05/17/2024 1",
                                                 "2 3 lease 3: Rent 05/17/2024 1"));
    EXPECT_THAT(run.failed, testing::IsEmpty());
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "3");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdLease = 4"), "0");
    EXPECT_EQ(Ask("SELECT Rent FROM Lease WHERE IdLease = 3"), "7");
}

TEST_F(TwoPrograms, ReportARecordWithoutANameByItsNumber) {
    Run("INSERT INTO Building (IdBuilding, Address) VALUES (10, '12 Elm St')");
    Run("INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (20, 10, 'B')");
    Run("INSERT INTO Tenant (IdTenant, LastName) VALUES (30, '')");
    Run("INSERT INTO Lease (IdLease, IdTenant, IdUnit, DateUpdated) VALUES (40, 30, 20, '')");
    tests::RunHeard run;
    core::UpdateEach(core::kLease, "SELECT * FROM LEASE", "IdLease", ChargeOnce, run);
    EXPECT_THAT(run.posted, testing::ElementsAre("2 40 lease 40: Rent 05/17/2024 1"));
}

} // namespace
