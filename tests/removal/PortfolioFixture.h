#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/CoreFixture.h"

namespace tests {

/// Books with the small portfolio that the statements are tested on, and what changes in them.
class Portfolio : public CoreBooks {
  protected:
    Portfolio();

    /// Takes the books as they are now as the ones to compare with.
    void Look() { before_ = ReadAll(); }

    /// The differences from the portfolio: "Table id" for a deleted row, "+Table id" for a new
    /// one, "Table id Field=value" for a changed field; in the order of the tables' names.
    std::vector<std::string> Changes() const;

  private:
    using Row = std::map<std::string, std::string>;
    using Rows = std::map<std::string, Row>; // by "Table id"
    static Rows ReadAll();

    Rows before_;
};

} // namespace tests
