#include "books/TellLists.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"

namespace books {

void TellLists(std::initializer_list<std::int16_t> kinds) {
    if (core::App().Connection.InUnitOfWork()) return;
    for (const std::int16_t kind : kinds)
        core::NotifyAll(kind, core::kRecordsChanged, 0);
}

} // namespace books
