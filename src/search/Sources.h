#pragma once

#include <span>
#include <string_view>

#include "core/RecordKinds.h"

namespace search {

/// One kind of records that can be found, and the select that reads them, newest first. Its columns
/// are the record's number and, by the first letters of their names: Kind, Parent1 and Parent3,
/// needed to open the record if its kind and number aren't enough; T, the title; D, the text shown
/// beside it; W, text that is only searched.
struct Source {
    std::string_view name; ///< the heading of its results
    std::string_view icon;
    core::RecordKind kind = core::kNone;
    std::string_view glue; ///< between the first part of the title and the second
    std::string_view sql;
};

/// Returns the sources in the order of their results. Secret fields (bank and card numbers,
/// passwords, social security numbers) aren't read, and so aren't in the index.
std::span<const Source> Sources();

} // namespace search
