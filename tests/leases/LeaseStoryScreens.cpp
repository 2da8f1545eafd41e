// The events that the screens of a lease, of its charges and of its ledger bring about.

#include <algorithm>

#include <fmt/core.h>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseEditor.h"
#include "leases/LeaseStory.h"
#include "leases/Ledger.h"
#include "leases/RentSplit.h"
#include "leases/mLease.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "support/Books.h"
#include "support/Words.h"

namespace tests {

using leases::LeaseCommand;
using platform::Recordset;
using support::Event;

namespace {

constexpr std::int32_t kNewLeaseId = 900;

/// Sets the fields that were added to the event.
void SetFields(Recordset& row, const Event& event) {
    for (const std::string& addition : event.added) {
        const std::size_t equals = addition.find(" =");
        row[addition.substr(0, equals)].Set(platform::Trim(addition.substr(equals + 2)));
    }
}

/// Saves a new lease of the unit and the tenant.
void SaveNewLease(const Event& event) {
    Recordset row;
    leases::ProposeLease(row);
    row["IdLease"].Set(kNewLeaseId);
    row["IdUnit"].Set(kUnitId);
    row["IdTenant"].Set(kTenantId);
    row["Rent"].Set(platform::Currency::FromUnits(800));
    row["DateRenewed"].Set("01/01/1999");
    SetFields(row, event);
    leases::SaveLease(row, leases::LeaseAge::New);
}

leases::RentSplit SplitOf(const std::string& number) {
    const auto ids =
        support::Rows(core::App().Connection, "SELECT IdRentLog FROM RentLog ORDER BY IdRentLog");
    return leases::ReadSplit(std::stoi(ids.at(std::stoul(number) - 1))).value();
}

/// "N into A and B", or only "N"
leases::RentSplit Enter(const Event& event) {
    const auto words = support::Split(event.rest, ' ');
    leases::RentSplit split = SplitOf(words.at(0));
    if (words.size() > 1) {
        split.parts[0].amount = platform::StrToMoney(words.at(2));
        split.parts[1].amount = platform::StrToMoney(words.at(4));
    }
    if (event.Added("the second stays rent")) split.rentPart = 1;
    return split;
}

std::vector<std::string> Tab(const Event& event) {
    const auto tab = std::ranges::find(leases::kLedgerTabs, event.rest, &leases::LedgerTab::name);
    std::vector<std::string> lines;
    for (const leases::LedgerRow& row : leases::ReadLedger(kLeaseId, *tab)) {
        lines.push_back(row.description +
                        (row.openTotal ? " = " + platform::FormatMoney(*row.openTotal) : ""));
    }
    return lines;
}

/// Runs one of the operations on the lease's row and writes the row.
void ChangeRow(void (*change)(Recordset& row)) {
    Recordset lease;
    lease.Open(core::App().Connection,
               fmt::format("SELECT * FROM Lease WHERE IdLease = {}", kLeaseId),
               platform::CursorMode::Updatable);
    change(lease);
    lease.Update();
}

} // namespace

void LeaseStory::AddScreens() {
    for (const auto& [verb, command] : {std::pair{"give notice", LeaseCommand::GiveNotice},
                                        {"break lease", LeaseCommand::BreakLease},
                                        {"cancel notice", LeaseCommand::CancelNotice},
                                        {"renew lease", LeaseCommand::RenewLease}}) {
        On(verb, [command](const Event& event) {
            const std::string days = event.added.empty() ? "30" : event.added.front();
            leases::RunCommand(command, kLeaseId, std::stoi(days));
        });
    }
    On("save new lease", SaveNewLease);
    On("save lease", [](const Event& event) {
        Recordset row;
        leases::ReadBalances(row, kLeaseId);
        SetFields(row, event);
        leases::SaveLease(row, leases::LeaseAge::Stored);
    });
    On("tab ", Tab);
    On("split ", [](const Event& event) {
        const leases::RentSplit split = Enter(event);
        if (event.rest.find("into") == std::string::npos) {
            return Lines{split.parts[0].description,
                         fmt::format("{} {} {}", split.parts[1].date.ToText(),
                                     split.parts[1].category, split.parts[1].description)};
        }
        const auto parts = leases::SaveSplit(split);
        return Lines{
            fmt::format("{}{} rows, missing {}", split.LosesRent() ? "loses the rent, " : "",
                        2 - std::ranges::count(parts, 0), platform::FormatMoney(split.Missing()))};
    });
    On("store balances", [](const Event&) { leases::StoreBalances(kLeaseId); });
    On("read settings", [](const Event&) { core::LoadConfiguration(); });
    On("set rent status", [](const Event&) { ChangeRow(leases::SetRentStatus); });
}

} // namespace tests
