#include "leases/LeaseStory.h"

#include <fmt/core.h>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/RunHeard.h"
#include "leases/ChargeDeposits.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseRun.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "support/Books.h"
#include "support/Words.h"

namespace tests {

using leases::WalkMode;
using platform::Date;
using support::Event;

namespace {

void StartProgram(Date day) {
    platform::SetToday(day);
    leases::UpdateLeaseById(kLeaseId, WalkMode::CatchUp);
}

/// "rent 1000 on 01/01/2024"
void Charge(const Event& event) {
    const auto words = support::Split(event.rest, ' ');
    const std::string& kind = words.at(0);
    leases::RentLogEntry entry{.idLease = kLeaseId,
                               .datePosted = Date::Parse(words.at(3)),
                               .category = kind == "rent" ? "Rent" : "Fee",
                               .amount = platform::StrToMoney(words.at(1)),
                               .description = words.at(1) + " on " + words.at(3)};
    if (kind == "rent") entry.flags = leases::RentFlags::PeriodRent;
    if (kind == "subsidy") entry.rentClass = core::TransactionClass::Subsidy;
    if (kind == "deposit") entry.rentClass = core::TransactionClass::Deposit;
    if (kind == "option") entry.rentClass = core::TransactionClass::OptionCredit;
    leases::WriteRentLog(entry);
}

} // namespace

LeaseStory::LeaseStory() : books_(folder_.Path() / "db") {
    core::Config() = {};
    AddCalendar();
    AddPayments();
    AddQuestions();
    AddReturns();
    AddScreens();
}

LeaseStory::~LeaseStory() {
    core::Config() = {};
}

void LeaseStory::AddCalendar() {
    On("today ", [](const Event& event) { StartProgram(Date::Parse(event.rest)); });
    On("daily ", [](const Event& event) {
        const Date last = Date::Parse(event.rest);
        while (platform::Today() < last)
            StartProgram(DateAdd(platform::Interval::Day, 1, platform::Today()));
    });
    On("roll forward",
       [](const Event&) { leases::UpdateLeaseById(kLeaseId, WalkMode::RollForward); });
    On("reprocess", [](const Event&) { leases::UpdateLeaseById(kLeaseId, WalkMode::Reprocess); });
    On("run all leases", [](const Event&) {
        RunHeard heard;
        leases::UpdateLeases(heard);
        Lines lines = std::move(heard.posted);
        lines.insert(lines.end(), heard.failed.begin(), heard.failed.end());
        return lines;
    });
    On("charge ", Charge);
    On("charge deposits", [](const Event&) { leases::ChargeDeposits(kLeaseId, kUnitId); });
}

void LeaseStory::Set(const std::string& field, const std::string& value) {
    SetLeaseField(field, value);
}

std::string LeaseStory::Get(const std::string& field) {
    platform::Connection& books = core::App().Connection;
    if (field == "unit") return support::Ask(books, "SELECT Status FROM Unit");
    if (field == "tenant") return support::Ask(books, "SELECT Status FROM Tenant");
    platform::Recordset lease;
    lease.Open(books, fmt::format("SELECT * FROM Lease WHERE IdLease = {}", kLeaseId));
    const auto value = lease[field];
    if (value.IsNull()) return "";
    return value.Type() == platform::FieldType::Currency ? platform::FormatMoney(value.AsCurrency())
                                                         : value.AsText();
}

LeaseStory::Lines LeaseStory::Ledger() {
    Lines lines;
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT * FROM RentLog ORDER BY IdRentLog");
    for (; !rows.Eof(); rows.MoveNext()) {
        lines.push_back(fmt::format(
            "{} | {}.{} | '{}' | {} | {}{}", rows["DatePosted"].AsText(), rows["Class"].AsText(),
            rows["Flags"].AsText(), rows["Category"].AsText(),
            platform::FormatMoney(rows["Amount"].AsCurrency()), rows["Description"].AsText(),
            rows["IdTransaction"].AsLong() == 0 ? "" : " | paid"));
    }
    return lines;
}

} // namespace tests
