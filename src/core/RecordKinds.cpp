#include "core/RecordKinds.h"

#include "core/KindTable.h"

namespace core {

std::string_view RecordKindName(RecordKind kind) {
    return InfoOf(kind).name;
}

std::string_view AccountTypeOfKind(RecordKind kind) {
    return InfoOf(kind).accountType;
}

} // namespace core
