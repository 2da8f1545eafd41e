#include "leases/PreviewRow.h"

#include <utility>

#include "leases/RentLog.h"

namespace leases {

PreviewRow RowOf(std::string what, const RentLogEntry& entry) {
    return {std::move(what), entry.datePosted, entry.category, entry.description, entry.amount};
}

} // namespace leases
