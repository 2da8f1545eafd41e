#include "core/RecordKinds.h"

#include "core/KindTable.h"

namespace core {

std::string_view RecordKindName(int kind) {
    return InfoOf(kind).name;
}

std::string_view AccountTypeOfKind(int kind) {
    return InfoOf(kind).accountType;
}

} // namespace core
