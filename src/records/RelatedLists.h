#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace records {

/// A record that other records belong to.
struct RelatedOwner {
    core::RecordKind kind = core::kNone;
    std::int32_t id = 0; ///< 0 while it isn't saved

    friend bool operator==(const RelatedOwner&, const RelatedOwner&) = default;
};

/// One list of the records that belong to an owner.
struct RelatedList {
    std::string_view caption;
    std::string_view gridKey;                ///< the name that its column widths are kept under
    core::RecordKind kind = core::kNone;     ///< of its records
    std::span<const core::RecordKind> shows; ///< kinds whose changes may be seen in it
    std::string_view sql;                    ///< the id first; each `?` stands for the owner's id
};

/// Shown for an owner without lists.
inline constexpr std::string_view kNoDbType = "No DB type selected";

/// Returns the lists that a building or a unit shows as tabs, in order; empty for other kinds.
std::span<const RelatedList> TabbedLists(core::RecordKind ownerKind);
/// Returns the list of a tenant, a work order or an appliance; null for other kinds.
const RelatedList* SingleList(core::RecordKind ownerKind);

/// Reads a list. Throws DatabaseError if it can't be read.
platform::Recordset OpenRelated(const RelatedList& list, const RelatedOwner& owner);

/// Returns the request that opens a record of the list: an existing one, or with id 0 a new one
/// that belongs to the owner.
core::EditRequest RelatedRequest(const RelatedList& list, const RelatedOwner& owner,
                                 std::int32_t id);

} // namespace records
