#pragma once

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

#include "exchange/PortFile.h"
#include "platform/database/dialect/Catalog.h"

namespace exchange {

/// Tells which records of a text file a table of the process's database has already: those with the
/// same id or, in a table whose rows have none of their own, with the same fields that a table may
/// have only once.
class KnownRows {
  public:
    /// Reads the keys of the table's rows. Throws on failure.
    explicit KnownRows(const platform::dialect::Table& table);

    /// Sets the fields that the next records have.
    void SetFields(const std::vector<std::string>& names);
    /// Returns false for a record that has no key.
    bool Has(const std::vector<PortItem>& record) const;

  private:
    std::vector<std::string> keyFields_;
    std::vector<std::size_t> keyItems_; ///< their places in a record; empty if one is missing
    std::unordered_set<std::string> keys_;
};

} // namespace exchange
