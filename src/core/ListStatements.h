#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"

namespace core {

/// The source of the rows of a kind's list. The select yields Description and ID and has no order
/// yet; it is empty for a kind without a list.
struct ListStatement {
    std::string_view noneRow;
    std::string sql;
};

/// Returns the statement of a kind's list. The kinds of accounts aren't filtered by type while the
/// settings show all accounts.
ListStatement ListStatementOf(RecordKind kind, std::int32_t parentId);

} // namespace core
