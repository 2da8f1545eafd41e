#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/TextKind.h"
#include "platform/database/Recordset.h"

namespace documents {

/// A tag of a template: "<<" and ">>" with a name between them.
struct MergeTag {
    std::string_view name;
    std::size_t start = 0;  ///< of its "<<", in bytes
    std::size_t length = 0; ///< of the whole tag, in bytes
};

/// Returns the tags of `text` in order; they are views into it. "<<>>" is not a tag.
std::vector<MergeTag> TagsOf(std::string_view text);

/// Replaces the tags of `text` by the values of the current row, and tags that begin with "!" by
/// system tags. A tag without a field, or whose field is null, stays as it is. Money is written as
/// "1,250.00", dates as "mm/dd/yyyy", booleans as "Yes" and "No", each escaped for the kind of
/// text.
void MergeTags(std::string& text, platform::Recordset& fields, TextKind kind = TextKind::Plain);

/// Returns the value of a system tag (its name without "!", in any case); "Invalid Tag" for an
/// unknown name.
std::string SystemTag(std::string_view name);

} // namespace documents
