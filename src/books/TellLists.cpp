#include "books/TellLists.h"

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"

namespace books {

void TellLists(std::initializer_list<core::RecordKind> kinds) {
    for (const core::RecordKind kind : kinds)
        core::NotifyAll(kind, core::kRecordsChanged, 0);
}

} // namespace books
