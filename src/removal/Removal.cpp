#include "removal/Removal.h"

#include <algorithm>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/KindOfTable.h"
#include "core/KindTable.h"
#include "core/MessagePump.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/TakenBack.h"
#include "removal/RemovalTable.h"
#include "removal/RentCredits.h"

namespace removal {

namespace {

/// Returns the table that a statement of a removal deletes from or updates.
std::string_view WrittenTable(std::string_view statement) {
    for (const std::string_view before : {"DELETE * FROM ", "UPDATE "}) {
        if (!statement.starts_with(before)) continue;
        statement.remove_prefix(before.size());
        return statement.substr(0, statement.find(' '));
    }
    return {};
}

} // namespace

Removal::Removal() : unit_(core::App().Connection) {}

void Removal::Remove(core::RecordKind kind, std::int32_t id, Charges charges) {
    if (id == 0) return;
    if (kind == core::kLease || kind == core::kMortgage || kind == core::kAutoEvent)
        core::ForgetTakenBackOf(kind, id);
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
        case core::kRentLog:
            ForgetCredit(id);
            RemoveStatements(kind, id);
            break;
        default:
            RemoveStatements(kind, id);
            break;
    }
    const KindRemoval* const entry = RemovalOf(kind);
    if (entry != nullptr && entry->shownBy != core::kNone)
        Note(entry->shownBy, core::kRecordsChanged);
    Execute("DELETE * FROM FileObject WHERE (dbType = ? ) AND (IdOwner = ?)", {kind, id});
    Note(kind, core::kRecordsChanged);
}

void Removal::RemoveStatements(core::RecordKind kind, std::int32_t id) {
    const KindRemoval* const entry = RemovalOf(kind);
    if (entry == nullptr) return;
    for (const std::string_view statement : entry->statements)
        Execute(statement, {id});
    const core::KindInfo& info = core::InfoOf(kind);
    if (!info.key.empty())
        Execute(fmt::format("DELETE * FROM {} WHERE {} = ?", info.table, info.key), {id});
}

std::int64_t Removal::Execute(std::string_view statement,
                              std::initializer_list<platform::Value> parameters) {
    const std::int64_t rows = core::Execute(statement, parameters);
    const core::RecordKind kind = core::KindOfTable(WrittenTable(statement));
    if (rows > 0 && kind != core::kNone) Note(kind, core::kRecordsChanged);
    return rows;
}

void Removal::Note(core::RecordKind kind, std::int16_t action) {
    const Message message{kind, action};
    if (std::ranges::find(messages_, message) == messages_.end()) messages_.push_back(message);
}

void Removal::Keep(Tell tell) {
    unit_.Commit();
    if (tell == Tell::Nobody) return;
    for (const Message& message : messages_)
        core::NotifyAll(message.kind, message.action, 0);
    core::LetMessagesRun();
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
