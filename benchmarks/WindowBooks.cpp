#include "WindowBooks.h"

#include <cstdlib>

#include <fmt/core.h>

#include "BenchBooks.h"
#include "core/Globals.h"
#include "core/Startup.h"
#include "platform/database/Connection.h"
#include "platform/registry/Registry.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Date.h"

namespace bench {

using platform::Currency;
using platform::Date;

namespace {

constexpr int kFirstTransaction = 5'000'000;
constexpr int kFirstMortgage = 4'000'000;
constexpr int kOneLateOf = 10;
const Date kFirstDay(2015, 1, 1);
constexpr int kDays = 3'653;

void AddMortgage(platform::Connection& connection, int number) {
    connection.Execute(
        "INSERT INTO Mortgage (IdMortgage, IdBuilding, AccountNumber, Status, PmtStatus, "
        "LastEscrowReview, CurrentPV) VALUES (?, ?, ?, 'Current', ?, '01/20/2024', 120000.5)",
        {kFirstMortgage + number, 300'000 + number, fmt::format("M-{}", number),
         number % kOneLateOf == 0 ? "Late" : "Current"});
    connection.Execute(
        "INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Total) "
        "VALUES (?, ?, ?, 812.5)",
        {kFirstMortgage + 100'000 + number, kFirstMortgage + number, number % 2});
}

void AddTransaction(platform::Connection& connection, int number, int leases) {
    const Date day = DateAdd(platform::Interval::Day,
                             static_cast<int>(std::int64_t{number} * 7919 % kDays), kFirstDay);
    const bool isIncome = number % 3 != 0;
    connection.Execute(
        "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, "
        "CreditDesc, Amount, TaxCategory, CheckNum, Description, IEN, Class, IdLease) "
        "VALUES (?, ?, ?, 'River Bank Checking', ?, ?, ?, ?, ?, 1, ?)",
        {kFirstTransaction + number, day.ToText(), fmt::format("Tenant {}", number % 997),
         Currency::FromUnits(500 + number % 1500), isIncome ? "Rents Received" : "Repairs",
         std::to_string(number % 9000 + 1000), fmt::format("Payment for {}", day.ToText()),
         isIncome ? 0 : 1, leases == 0 ? 0 : number % leases + 1});
    if (leases == 0 || number % kOneLateOf != 0) return;
    connection.Execute(
        "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Category, "
        "Amount, Flags) VALUES (?, ?, ?, ?, 1, 'Rent', 950, 1)",
        {kFirstTransaction + 2'000'000 + number, number % leases + 1,
         number % 100 == 0 ? 0 : kFirstTransaction + number, day.ToText()});
}

} // namespace

void MakeWindowBooks(const std::filesystem::path& folder, const WindowBooks& books) {
    MakeBooks(folder, books.leases, Date(2024, 2, 1));
    platform::Connection connection;
    connection.Open(folder / "Vestrel.mdb");
    platform::UnitOfWork unit(connection);
    for (int number = kOneLateOf; number <= books.leases; number += kOneLateOf) {
        connection.Execute("UPDATE Lease SET RentStatus = 'Late' WHERE IdLease = ?", {number});
    }
    for (int number = 1; number <= books.mortgages; ++number)
        AddMortgage(connection, number);
    for (int number = 1; number <= books.transactions; ++number)
        AddTransaction(connection, number, books.leases);
    unit.Commit();
    connection.Close();
}

void OpenWindowBooks(const std::filesystem::path& folder) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 0);
    platform::SetRegistry(platform::MakeMemoryRegistry());
    platform::SetToday(Date(2025, 1, 15));
    core::App().DbPath = platform::AddBackslash(folder.string());
    core::App().DbFile = core::App().DbPath + "Vestrel.mdb";
    core::OpenBooks();
}

} // namespace bench
