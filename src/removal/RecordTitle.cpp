#include "removal/RecordTitle.h"

#include <string_view>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Session.h"

namespace removal {

namespace {

std::string_view TitleSql(std::int16_t kind) {
    switch (kind) {
        case core::kWorkOrder:
            return "SELECT ShortDesc FROM WorkOrder WHERE IdWorkOrder = ?";
        case core::kIncident:
            return "SELECT Description FROM Incident WHERE IdIncident = ?";
        case core::kTransaction:
            return "SELECT DateEffective & ', ' & Description FROM Transactions "
                   "WHERE IdTransaction = ?";
        case core::kOwner:
            return "SELECT Account.ShowAs FROM OwnerLink, Account "
                   "WHERE (OwnerLink.IdAccount = Account.IdAccount) AND (IdOwnerLink = ?)";
        case core::kManager:
            return "SELECT Account.ShowAs FROM ManagerLink, Account "
                   "WHERE (ManagerLink.IdAccount = Account.IdAccount) AND (IdManagerLink = ?)";
        case core::kAutoEvent:
            return "SELECT Description FROM AutoEvent WHERE IdAutoEvent = ?";
        case core::kContent:
            return "SELECT Description FROM Content WHERE IdContent = ?";
        case core::kSvcContract:
            return "SELECT Account.ShowAs & ', ' & SvcContract.SvcType FROM SvcContract, Account "
                   "WHERE (SvcContract.IdVendor = Account.IdAccount) AND (IdSvcContract = ?)";
        case core::kMortgageLog:
            return "SELECT Description FROM MortgageLog WHERE IdMortgageLog = ?";
        case core::kWorkOrderHistory:
            return "SELECT Description FROM WOItem WHERE IdWOItem = ?";
        case core::kFileObject:
            return "SELECT Description FROM FileObject WHERE IdFileObject = ?";
        case core::kDocument:
            return "SELECT Description FROM Doc WHERE IdDoc = ?";
        case core::kRentLog:
            return "SELECT DatePosted & ', ' & Category FROM RentLog WHERE IdRentLog = ?";
        default:
            return {};
    }
}

} // namespace

std::string RecordTitle(std::int16_t kind, std::int32_t id) {
    const std::string_view sql = TitleSql(kind);
    if (sql.empty()) return core::GetDescription(kind, id);
    const auto title = core::LookUp(sql, {id});
    return title ? title->AsText() : std::string();
}

} // namespace removal
