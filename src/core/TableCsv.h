#pragma once

#include <iosfwd>

#include "core/Table.h"

namespace core {

/// Writes a table as CSV: the captions, then a line per row. Values are written raw, not as their
/// formats show them.
void WriteCsv(const Table& table, std::ostream& output);

} // namespace core
