#pragma once

#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"

namespace reports {

/// Opens a query for reading. Returns false if it has no rows or can't be opened, which a report
/// shows in the same way. The rows are read as they are drawn, so that a long list shows its first
/// page early; a failure among the later rows is thrown by the row set.
bool OpenQuery(platform::Recordset& rows, std::string_view sql);

/// Returns how many characters a list leaves room for in each column of a query: the size of the
/// field that the column shows, and 255 for a computed one. Empty if the query has a fault.
std::vector<int> TextSizesOf(std::string_view sql);

} // namespace reports
