#pragma once

#include <functional>

namespace platform {

/// Called before every statement that writes, and before every begin and end of a unit of work, of
/// all connections: a test that stops the process at each of them proves that the books survive it.
/// Empty is off.
void SetStatementProbe(std::function<void()> probe);

} // namespace platform
