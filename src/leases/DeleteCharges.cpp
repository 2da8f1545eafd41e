#include "leases/DeleteCharges.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/LeaseEditor.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/DeleteRecord.h"

namespace leases {

namespace {

bool Agreed(const std::vector<std::int32_t>& ids, std::string_view question) {
    if (ids.size() == 1) return removal::AgreedToDelete(core::kRentLog, ids.front());
    return platform::TheDialogs().AskYesNo("Confirm Delete", question, platform::Icon::Question);
}

} // namespace

bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question) {
    if (ids.empty() || !Agreed(ids, question)) return false;
    platform::UnitOfWork unit(core::App().Connection);
    for (const std::int32_t id : ids)
        removal::RemoveRecord(core::kRentLog, id, removal::Tell::Nobody);
    StoreBalances(idLease);
    unit.Commit();
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    return true;
}

} // namespace leases
