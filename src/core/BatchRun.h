#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "core/DailyRun.h"
#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace core {

/// Brings one record, the current row of an updatable row set, up to date, and returns what was
/// posted for it; the categories must outlive the run. Throws if it fails, and leaves the record as
/// it was. Whatever it posts must be undone if its write of the row throws ConflictError.
using UpdateOne = std::function<std::vector<PostedRow>(platform::Recordset& row)>;

/// Calls `update` with every row of `select`, in its order, for records of `kind` with the key
/// `idField`. Many records are committed at a time and then reported to the listener; a record that
/// fails is reported and left unchanged, and the others are still updated. A record that another
/// program has changed since it was read is read again first. Window messages are processed between
/// the batches.
void UpdateEach(RecordKind kind, std::string_view select, std::string_view idField,
                const UpdateOne& update, RunListener& listener);

} // namespace core
