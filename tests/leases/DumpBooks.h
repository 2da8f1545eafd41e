#pragma once

#include <string>
#include <vector>

namespace tests {

/// Every row of every table of the open books, a line each.
std::vector<std::string> DumpBooks();

} // namespace tests
