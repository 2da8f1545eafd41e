#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"

namespace platform {

/// How many rows are read at once.
inline constexpr int kFirstRowsRead = 500;

/// Opens a select that is only read, counts its rows and reads the first of them; the others are
/// read when they are asked for. They are as they were when it was opened all the same: before
/// anything is written, and before the connection closes, what is left is read at once. Failures as
/// of Recordset::Open; one that comes later is thrown where a row is asked for.
void OpenAsNeeded(Recordset& rows, Connection& connection, std::string_view sql,
                  std::initializer_list<Value> parameters = {});

} // namespace platform
