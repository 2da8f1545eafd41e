#include "core/ListStatements.h"

#include "core/Configuration.h"
#include "core/KindTable.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"

namespace core {

ListStatement ListStatementOf(RecordKind kind, std::int32_t parentId) {
    const KindInfo& info = InfoOf(kind);
    if (!info.listOfParent.empty() && (parentId != 0 || info.list.empty())) {
        return {info.noneRow, std::string(info.listOfParent) + std::to_string(parentId)};
    }
    std::string sql(info.list);
    if (!info.accountType.empty() && !Config().ShowAllAccounts) {
        AddWhere(sql, "AccountType = " + platform::dialect::QuoteText(info.accountType));
    }
    if (!info.condition.empty()) AddWhere(sql, info.condition);
    return {info.noneRow, sql};
}

} // namespace core
