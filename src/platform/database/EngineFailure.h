#pragma once

#include <string>

struct sqlite3;

namespace platform {

/// Says in plain words why the engine failed: `code` is the engine's result code, plain or
/// extended, `systemError` the errno that came with it (0 if there was none), `text` the engine's
/// own message, which is used for failures without a better description.
std::string DescribeEngineFailure(int code, int systemError, const std::string& text);

/// Throws the engine's last failure as a DatabaseError.
[[noreturn]] void ThrowEngineError(sqlite3* database);
/// Throws a failure of which only the engine's result code is known.
[[noreturn]] void ThrowEngineError(int result);

} // namespace platform
