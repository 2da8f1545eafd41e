#pragma once

#include <string_view>

#include "platform/database/Recordset.h"

namespace reports {

/// Opens a query to be read. False if it has no rows or can't be opened: a report shows both alike.
bool OpenQuery(platform::Recordset& rows, std::string_view sql);

} // namespace reports
