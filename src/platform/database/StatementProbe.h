#pragma once

#include <functional>

namespace platform {

/// Sets a function that is called before every statement that writes, and before every begin and
/// end of a unit of work, of all connections: a test that stops the process at each of them proves
/// that the books survive it. An empty function turns this off.
void SetStatementProbe(std::function<void()> probe);

} // namespace platform
