#include "removal/Removal.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "removal/RemovalStatements.h"

namespace removal {

Removal::Removal() : unit_(core::App().Connection) {}

void Removal::Remove(std::int16_t kind, std::int32_t id, Charges charges) {
    if (id == 0) return;
    switch (kind) {
        case core::kLease:
            RemoveLease(id);
            break;
        case core::kOwner:
            RemoveOwner(id);
            break;
        case core::kTransaction:
            RemoveTransaction(id, charges);
            break;
        default:
            RemoveStatements(kind, id);
            break;
    }
    if (kind == core::kBuilding) Note(core::kUnit, core::kRecordsChanged);
    if (kind == core::kUnit) Note(core::kBuilding, core::kRecordsChanged);
    core::App().Connection.Execute("DELETE * FROM FileObject WHERE (dbType = ? ) AND (IdOwner = ?)",
                                   {kind, id});
    Note(kind, core::kRecordsChanged);
}

void Removal::RemoveStatements(std::int16_t kind, std::int32_t id) {
    for (const std::string& statement : StatementsToRemove(kind)) {
        core::App().Connection.Execute(statement, {id});
    }
}

void Removal::Note(std::int16_t kind, std::int16_t action) {
    const Message message{kind, action};
    if (std::ranges::find(messages_, message) == messages_.end()) messages_.push_back(message);
}

void Removal::Keep(Tell tell) {
    unit_.Commit();
    if (tell == Tell::Nobody) return;
    for (const Message& message : messages_) {
        core::NotifyAll(message.kind, message.action, 0);
    }
    // A timer must not post into the larger unit of work that this removal may be a part of.
    if (!core::App().Connection.InUnitOfWork()) core::LetMessagesRun();
}

void RunRemoval(Tell tell, const std::function<void(Removal& removal)>& work) {
    Removal removal;
    try {
        work(removal);
    } catch (...) {
        removal.Keep(tell);
        throw;
    }
    removal.Keep(tell);
}

} // namespace removal
