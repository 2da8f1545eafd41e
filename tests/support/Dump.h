#pragma once

#include "core/Globals.h"
#include "support/Books.h"

namespace support {

/// Every row of every table of the process's own books, after the table's name.
inline std::vector<std::string> Dump() {
    return Dump(core::App().Connection);
}

} // namespace support
