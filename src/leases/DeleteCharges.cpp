#include "leases/DeleteCharges.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "exchange/DeleteRecord.h"
#include "leases/LeaseEditor.h"
#include "platform/dialogs/Dialogs.h"

namespace leases {

bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question) {
    if (ids.empty()) return false;
    const bool several = ids.size() > 1;
    if (several &&
        !platform::TheDialogs().AskYesNo("Confirm Delete", question, platform::Icon::Question)) {
        return false;
    }
    if (!several && !exchange::DeleteRecord(core::kRentLog, ids.front(), exchange::Confirm::Ask,
                                            exchange::Tell::Nobody)) {
        return false;
    }
    platform::UnitOfWork unit(core::App().Connection);
    if (several) {
        for (const std::int32_t id : ids)
            exchange::RemoveRecord(core::kRentLog, id, exchange::Tell::Nobody);
    }
    StoreBalances(idLease);
    unit.Commit();
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    return true;
}

} // namespace leases
