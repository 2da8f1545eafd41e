#include <fmt/core.h>

#include "books/AutoEvent.h"
#include "books/PostTransaction.h"
#include "books/TellLists.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace books {

using platform::Date;
using platform::Recordset;

namespace {

constexpr std::size_t kNameCharacters = 30;
constexpr std::string_view kCheckNumber = "AutoEvent";

Party PartyOf(Recordset& event, std::string_view typeField, std::string_view idField) {
    const std::int16_t type = CountOf(event[typeField]);
    const std::int32_t id = IdOf(event[idField]);
    return {type, id, core::GetDescription(type, id, kNameCharacters)};
}

Transaction PostingOf(Recordset& event, Date date) {
    return {.dateEffective = date,
            .debit = PartyOf(event, "DebitType", "DebitId"),
            .credit = PartyOf(event, "CreditType", "CreditId"),
            .amount = MoneyOf(event["Amount"]),
            .taxCategory = TextOf(event["TaxCategory"]),
            .ien = Ien{CountOf(event["IEN"])},
            .checkNumber = std::string(kCheckNumber),
            .description = TextOf(event["Description"]),
            .idTenant = IdOf(event["IdTenant"]),
            .idBuilding = IdOf(event["IdBuilding"]),
            .idUnit = IdOf(event["IdUnit"]),
            .idLease = IdOf(event["IdLease"]),
            .idMortgage = IdOf(event["IdMortgage"]),
            .idWorkOrder = IdOf(event["IdWorkOrder"])};
}

} // namespace

void RunAutoEvent(std::int32_t idAutoEvent, Date date) {
    if (!date.IsSet()) date = platform::Today();
    Recordset event;
    event.Open(core::App().Connection, "SELECT * FROM AutoEvent WHERE IdAutoEvent = ?",
               platform::CursorMode::ReadOnly, {idAutoEvent});
    if (event.Eof()) return;

    platform::UnitOfWork unit(core::App().Connection);
    const bool posts =
        EventAction{CountOf(event["EventAction"])} == EventAction::ProcessTransaction;
    if (posts) PostTransaction(PostingOf(event, date), Triggers::Skip);
    if (FlagOf(event["Alert"])) {
        core::AddAlert(fmt::format("Auto Event Launched: {} [{}]", TextOf(event["Description"]),
                                   date.ToText()),
                       date);
    }
    // By number, not by row: events of one number (an import can bring them) move on together.
    core::App().Connection.Execute("UPDATE AutoEvent SET LastRun = ? WHERE IdAutoEvent = ?",
                                   {date.ToText(), idAutoEvent});
    unit.Commit();
    if (posts) TellLists({core::kTransaction});
    TellLists({core::kAutoEvent});
}

} // namespace books
