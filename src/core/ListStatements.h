#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace core {

/// Where the rows of a kind's list come from. The select yields Description and ID and has no
/// order yet; it is empty for a kind without a list.
struct ListStatement {
    std::string_view noneRow;
    std::string sql;
};

/// The account kinds' filter by type falls away while the settings show all accounts.
ListStatement ListStatementOf(int kind, std::int32_t parentId);

} // namespace core
