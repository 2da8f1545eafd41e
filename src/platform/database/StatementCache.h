#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/database/PreparedStatement.h"
#include "platform/database/dialect/Compiler.h"

namespace platform {

/// The compiled form of a statement of the dialect. Row sets keep it for as long as they are open.
struct StatementPlan {
    dialect::CompiledStatement compiled;
    /// Distinguishes this plan from all others of the connection.
    std::uint64_t number = 0;
};

struct CachedStatement {
    /// Null for a statement that a row set wrote by itself.
    std::shared_ptr<const StatementPlan> plan;
    PreparedStatement statement;
};

/// The statements prepared last, by their text. A new one replaces the one that wasn't used for the
/// longest time.
class StatementCache {
  public:
    explicit StatementCache(std::size_t capacity) : capacity_(capacity) {}

    /// Returns the statement for this key; null if there is none. It stays valid until `capacity`
    /// others have been added.
    CachedStatement* Find(std::string_view key);
    CachedStatement& Add(std::string_view key, CachedStatement statement);
    void Clear();

  private:
    struct Entry {
        std::string key;
        CachedStatement statement;
    };

    std::size_t capacity_;
    std::list<Entry> entries_; // the last used in front
    std::unordered_map<std::string_view, std::list<Entry>::iterator> index_;
};

} // namespace platform
