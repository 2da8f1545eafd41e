#include <fmt/core.h>

#include "books/AutoEvent.h"
#include "books/PostTransaction.h"
#include "books/TellLists.h"
#include "books/TransactionRow.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/KindOfTable.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
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
    const core::RecordKind type = core::KindOf(event[typeField]);
    const std::int32_t id = IdOf(event[idField]);
    return {type, id, core::GetDescription(type, id, kNameCharacters)};
}

Transaction PostingOf(Recordset& event, Date date) {
    Transaction posting;
    posting.dateEffective = date;
    posting.debit = PartyOf(event, "DebitType", "DebitId");
    posting.credit = PartyOf(event, "CreditType", "CreditId");
    posting.amount = MoneyOf(event["Amount"]);
    posting.taxCategory = TextOf(event["TaxCategory"]);
    posting.ien = Ien{ShortOf(event["IEN"])};
    posting.checkNumber = kCheckNumber;
    posting.description = TextOf(event["Description"]);
    static_cast<References&>(posting) = ReadReferences(event);
    return posting;
}

/// Stores the date by id and not by row: if an import brought events with the same id, they all
/// move on together.
void StoreLastRun(std::int32_t idAutoEvent, Date date) {
    core::Execute("UPDATE AutoEvent SET LastRun = ? WHERE IdAutoEvent = ?",
                  {date.ToText(), idAutoEvent});
    TellLists({core::kAutoEvent});
}

} // namespace

std::int32_t RunAutoEvent(std::int32_t idAutoEvent, Date date, EventPosts posts) {
    if (!date.IsSet()) date = platform::Today();
    platform::UnitOfWork unit(core::App().Connection);
    Recordset event = core::Read("SELECT * FROM AutoEvent WHERE IdAutoEvent = ?", {idAutoEvent});
    if (event.Eof()) return 0;

    const bool hasTransaction =
        EventAction{ShortOf(event["EventAction"])} == EventAction::ProcessTransaction;
    const std::int32_t idTransaction = hasTransaction && posts == EventPosts::Yes
                                           ? PostTransaction(PostingOf(event, date), Triggers::Skip)
                                           : 0;
    if (FlagOf(event["Alert"])) {
        core::AddAlert(fmt::format("Auto Event Launched: {} [{}]", TextOf(event["Description"]),
                                   date.ToText()),
                       date);
    }
    StoreLastRun(idAutoEvent, date);
    unit.Commit();
    return idTransaction;
}

} // namespace books
