#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/CoreFixture.h"
#include "core/Globals.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"

namespace {

using platform::Date;

class SampleUnits : public tests::CoreBooks {};

/// Units whose status contradicts their leases, with both.
std::vector<std::string> Contradictions() {
    std::vector<std::string> faults;
    platform::Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT Unit.IdUnit, Unit.Status, "
              "(SELECT Count(*) FROM Lease WHERE Lease.IdUnit = Unit.IdUnit AND Lease.Status IN "
              "('Contracted', 'MTM', 'WTW', 'Notice')) AS Running, "
              "(SELECT Count(*) FROM Lease WHERE Lease.IdUnit = Unit.IdUnit AND Lease.Status = "
              "'Pending') AS Waiting FROM Unit");
    for (; !rows.Eof(); rows.MoveNext()) {
        const bool isLeased = rows["Status"].AsText() == "Leased";
        const bool isLet = rows["Running"].AsLong() > 0;
        const bool isPromised = rows["Waiting"].AsLong() > 0;
        if (isLeased ? !isLet && !isPromised : isLet) {
            faults.push_back("unit " + rows["IdUnit"].AsText() + " is " + rows["Status"].AsText());
        }
    }
    return faults;
}

TEST_F(SampleUnits, AgreeWithTheirLeasesWheneverTheSampleIsMade) {
    shell::RegisterLogic();
    int made = 0;
    for (const Date today : {Date(2024, 2, 29), Date(2023, 12, 31), Date(2024, 11, 16)}) {
        SCOPED_TRACE(today.ToText());
        const auto folder = Folder() / ("sample" + std::to_string(++made));
        core::App().Connection.Close();
        shell::MakeSamplePortfolio(folder, 24, today);
        core::App().Connection.Open(folder / "Vestrel.mdb");
        EXPECT_EQ(Contradictions(), std::vector<std::string>());
    }
}

} // namespace
