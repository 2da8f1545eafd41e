#pragma once

#include <cstdint>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/database/TextIndex.h"
#include "search/Sources.h"

namespace search {

/// The layout of the index: a number that changes with what the texts below are made of, so that
/// an index made by an older program is made again.
inline constexpr std::int32_t kLayout = 1;

/// Returns the keys of a source's records, the newest record first.
std::int64_t FirstKey(std::size_t source);
std::int64_t LastKey(std::size_t source);
std::int64_t KeyOf(std::size_t source, std::int32_t id);
std::size_t SourceOf(std::int64_t key);

/// Makes texts of a source's rows. The rows stay with the caller.
class SourceRows {
  public:
    SourceRows(std::size_t source, platform::Recordset& rows);

    /// Returns the number of the current record, 0 for one without.
    std::int32_t Id();
    /// Returns a number that changes with whatever the text is made of.
    std::uint64_t Mark();
    platform::IndexedText Text();

  private:
    enum class Role : std::uint8_t { Kind, Parent1, Parent3, Title, Detail, Words };

    std::size_t number_;
    const Source& source_;
    platform::Recordset& rows_;
    std::vector<Role> roles_; ///< of the fields after the first
};

} // namespace search
