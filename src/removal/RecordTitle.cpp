#include "removal/RecordTitle.h"

#include "core/Descriptions.h"
#include "core/KindTable.h"
#include "core/RecordKinds.h"
#include "core/Session.h"

namespace removal {

std::string RecordTitle(core::RecordKind kind, std::int32_t id) {
    const std::string_view sql = core::InfoOf(kind).label;
    if (sql.empty()) return core::GetDescription(kind, id);
    const auto title = core::LookUp(sql, {id});
    return title ? title->AsText() : std::string();
}

} // namespace removal
