#include "books/TellLists.h"

#include "core/NotifyAll.h"

namespace books {

void TellLists(std::initializer_list<std::int16_t> kinds) {
    for (const std::int16_t kind : kinds)
        core::NotifyAll(kind, core::kRecordsChanged, 0);
}

} // namespace books
