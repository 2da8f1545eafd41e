#include "platform/database/StatementCache.h"

namespace platform {

CachedStatement* StatementCache::Find(std::string_view key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return nullptr;
    entries_.splice(entries_.begin(), entries_, found->second);
    return &found->second->statement;
}

CachedStatement& StatementCache::Add(std::string_view key, CachedStatement statement) {
    if (entries_.size() >= capacity_) {
        index_.erase(entries_.back().key);
        entries_.pop_back();
    }
    entries_.push_front({std::string(key), std::move(statement)});
    index_.emplace(entries_.front().key, entries_.begin());
    return entries_.front().statement;
}

void StatementCache::Clear() {
    index_.clear();
    entries_.clear();
}

} // namespace platform
