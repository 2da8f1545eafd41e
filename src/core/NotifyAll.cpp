#include "core/NotifyAll.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "core/Configuration.h"
#include "core/RecordKinds.h"

namespace core {

namespace {

struct Entry {
    int id = 0;
    // Shared, so that a listener which ends its own listening isn't destroyed while it runs.
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

} // namespace

NotifyToken::NotifyToken(NotifyListener listener) : id_(NewEntryId()) {
    Listeners().push_back({id_, std::make_shared<const NotifyListener>(std::move(listener))});
}

NotifyToken::~NotifyToken() {
    std::erase_if(Listeners(), [this](const Entry& entry) { return entry.id == id_; });
}

void NotifyAll(std::int16_t kind, std::int16_t action, std::int32_t id) {
    if (kind == kConfiguration) LoadConfiguration();
    // A listener added during the broadcast has just read the records, and isn't notified.
    const std::vector<Entry> told = Listeners();
    for (const Entry& entry : told) {
        if (!IsListening(entry.id)) continue;
        try {
            (*entry.listener)(kind, action, id);
        } catch (...) {
            // A screen that can't refresh must not stop the one that saved.
        }
    }
}

} // namespace core
