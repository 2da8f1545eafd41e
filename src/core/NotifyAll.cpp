#include "core/NotifyAll.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/KindTable.h"
#include "core/RecordKinds.h"
#include "core/ScratchSession.h"

namespace core {

namespace {

struct Entry {
    int id = 0;
    // Shared, so that a listener that removes itself isn't destroyed while it runs.
    std::shared_ptr<const NotifyListener> listener;
};

std::vector<Entry>& Listeners() {
    static std::vector<Entry> listeners;
    return listeners;
}

int NewEntryId() {
    static int last = 0;
    return ++last;
}

bool IsListening(int id) {
    return std::ranges::any_of(Listeners(), [id](const Entry& entry) { return entry.id == id; });
}

struct Message {
    RecordKind kind;
    std::int16_t action;
    std::int32_t id;
    friend bool operator==(const Message&, const Message&) = default;
};

void Tell(const Message& message) {
    if (message.kind == kConfiguration) LoadConfiguration();
    // A listener added during the broadcast has just read the records, and needn't be notified.
    const std::vector<Entry> told = Listeners();
    for (const Entry& entry : told) {
        if (!IsListening(entry.id)) continue;
        try {
            (*entry.listener)(message.kind, message.action, message.id);
        } catch (...) {
            // If a screen can't refresh, the screen that saved must still go on.
        }
    }
}

/// Returns the messages of the unit of work that is open.
std::vector<Message>& HeldBack() {
    static std::vector<Message> messages;
    return messages;
}

void TellHeldBack(platform::UnitEnd end) {
    const std::vector<Message> messages = std::exchange(HeldBack(), {});
    if (end == platform::UnitEnd::RolledBack) return;
    for (const Message& message : messages)
        Tell(message);
}

void HoldBack(const Message& message) {
    std::vector<Message>& messages = HeldBack();
    if (messages.empty()) App().Connection.AfterUnitOfWork(TellHeldBack);
    std::erase(messages, message);
    messages.push_back(message);
}

} // namespace

NotifyToken::NotifyToken(NotifyListener listener) : id_(NewEntryId()) {
    Listeners().push_back({id_, std::make_shared<const NotifyListener>(std::move(listener))});
}

NotifyToken::~NotifyToken() {
    std::erase_if(Listeners(), [this](const Entry& entry) { return entry.id == id_; });
}

void NotifyAll(RecordKind kind, std::int16_t action, std::int32_t id) {
    if (InScratchSession()) return; // nobody has seen the copy
    const Message message{kind, action, id};
    if (App().Connection.InUnitOfWork()) {
        HoldBack(message);
    } else {
        Tell(message);
    }
}

void NotifyOfAllKinds() {
    for (const KindInfo& info : AllKinds()) {
        if (info.kind != kNone && info.kind <= kRentLog) NotifyAll(info.kind, kRecordsChanged, 0);
    }
}

} // namespace core
