#pragma once

#include "platform/database/Recordset.h"

namespace platform {

/// A read-only row set that counts its rows and reads the first page of them when it is opened; the
/// others are read when they are asked for. They are as they were when it was opened all the same:
/// before anything is written, and before the connection closes, what is left is read at once.
inline constexpr CursorMode kReadAsNeeded = static_cast<CursorMode>(3);

/// How many rows the first page has.
inline constexpr int kFirstRowsRead = 500;

} // namespace platform
