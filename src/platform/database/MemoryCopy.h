#pragma once

#include <filesystem>
#include <functional>

#include "platform/database/Connection.h"

namespace platform {

/// Opens a copy in memory of a database, as the database is at one moment. The file is only read,
/// also one that can't be written to, and is free again when this returns. Closing the connection
/// drops the copy.
///
/// `stop` may be empty. It is asked now and then while the copy is made, and later by every
/// statement on the copy; once it returns true, these throw DatabaseError. It must outlive the
/// connection, and is called on the threads that use it.
void OpenCopyInMemory(Connection& connection, const std::filesystem::path& database,
                      const std::function<bool()>& stop);

} // namespace platform
