#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/values/Value.h"
#include "store/Tables.h"

namespace store {

/// Adds rows to the tables of the books as the screens leave them: what isn't named is 0, False or
/// empty, never null.
class SampleWriter {
  public:
    using Fields = std::initializer_list<std::pair<std::string_view, platform::Value>>;

    SampleWriter(platform::Connection& connection, std::function<std::int32_t()> nextId);

    /// Adds a row. If the table's first field is its key, it gets a new identifier, which is
    /// returned; otherwise returns 0. A null given for a day is written as empty. Throws FieldError
    /// for a field that the table doesn't have.
    std::int32_t Add(std::string_view table, Fields fields);

    platform::Connection& Books() { return connection_; }

  private:
    struct Insert {
        const TableDefinition* table = nullptr;
        std::string sql;
        std::vector<platform::Value> blank;
    };
    const Insert& InsertInto(std::string_view name);

    platform::Connection& connection_;
    std::function<std::int32_t()> nextId_;
    std::unordered_map<std::string_view, Insert> inserts_;
};

} // namespace store
