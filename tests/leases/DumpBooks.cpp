#include "leases/DumpBooks.h"

#include "core/Globals.h"
#include "support/Books.h"

namespace tests {

std::vector<std::string> DumpBooks() {
    return support::Dump(core::App().Connection);
}

} // namespace tests
