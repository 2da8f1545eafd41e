#include "BenchBooks.h"

#include <fmt/core.h>

#include "core/DailyRun.h"
#include "core/Globals.h"
#include "leases/LeaseRun.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"

namespace bench {

using platform::Date;

namespace {

constexpr int kFirstUnit = 100'000;
constexpr int kFirstTenant = 200'000;
constexpr int kFirstBuilding = 300'000;

class Counter : public core::RunListener {
  public:
    void Posted(core::RecordKind, std::int32_t, std::string_view,
                const std::vector<core::PostedRow>& rows) override {
        count_ += static_cast<double>(rows.size());
    }
    void Failed(core::RecordKind, std::int32_t, std::string_view description,
                std::string_view reason) override {
        throw platform::Error(fmt::format("{}: {}", description, reason));
    }
    double Count() const { return count_; }

  private:
    double count_ = 0;
};

void AddLease(platform::Connection& connection, int number, Date firstDue) {
    const std::string before = DateAdd(platform::Interval::Day, -1, firstDue).ToText();
    connection.Execute("INSERT INTO Building (IdBuilding, Address) VALUES (?, ?)",
                       {kFirstBuilding + number, fmt::format("{} Elm Street", number)});
    connection.Execute(
        "INSERT INTO Unit (IdUnit, IdBuilding, Unit, Status) VALUES (?, ?, 'A', 'Leased')",
        {kFirstUnit + number, kFirstBuilding + number});
    connection.Execute("INSERT INTO Tenant (IdTenant, LastName, Status) VALUES (?, ?, 'Current')",
                       {kFirstTenant + number, fmt::format("Tenant {}", number)});
    connection.Execute(
        "INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, RentStatus, DateCreated, "
        "DateActive, "
        "DateRenewed, DateNextDue, DateUpdated, Term, TermType, ExpireOption, NoticeDays, Rent, "
        "Discount, DiscountDays, OneTimeFee, OneTimeDays, DailyFee, DailyDays, EvictDays, Subs, "
        "SubsAmt) VALUES (?, ?, ?, 'Contracted', 'OK', ?, ?, ?, ?, ?, 24, 'Month(s)', 'MTM', 30, "
        "1250.50, 0, 5, 50, 5, 7.25, 10, 15, False, 0)",
        {number, kFirstTenant + number, kFirstUnit + number, before, firstDue.ToText(),
         firstDue.ToText(), firstDue.ToText(), before});
}

} // namespace

void MakeBooks(const std::filesystem::path& folder, int leases, Date firstDue) {
    store::CreateDatabase(folder);
    platform::Connection connection;
    connection.Open(folder / "Vestrel.mdb");
    platform::UnitOfWork unit(connection);
    connection.Execute("INSERT INTO Configuration (NextId) VALUES (1000000)");
    for (int number = 1; number <= leases; ++number)
        AddLease(connection, number, firstDue);
    unit.Commit();
    connection.Close();
}

void OpenBooks(const std::filesystem::path& folder) {
    core::App().Connection.Open(folder / "Vestrel.mdb");
}

void PayEverything(Date nextDue) {
    core::App().Connection.Execute("UPDATE RentLog SET IdTransaction = 1 WHERE IdTransaction = 0");
    core::App().Connection.Execute("UPDATE Lease SET DateNextDue = ?", {nextDue.ToText()});
}

double RunLeases(Date today) {
    platform::SetToday(today);
    Counter counter;
    leases::UpdateLeases(counter);
    return counter.Count();
}

} // namespace bench
