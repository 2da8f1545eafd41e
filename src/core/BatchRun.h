#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/DailyRun.h"
#include "platform/database/Recordset.h"

namespace core {

/// Brings one record, the current row of an updatable row set, up to date, and answers what was
/// posted for it; the categories must outlive the run. What it throws leaves the record as it was.
using UpdateOne = std::function<std::vector<PostedRow>(platform::Recordset& row)>;

/// Does `update` with every row of `select`, in its order, for records of `kind` with the key
/// `idField`. Many records are kept at a time, and told to the listener once they are; one that
/// fails is told, left as it was, and the others go on. Messages run between the batches.
void UpdateEach(std::int16_t kind, std::string_view select, std::string_view idField,
                const UpdateOne& update, RunListener& listener);

} // namespace core
