#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core/TakenBack.h"
#include "shell/RunHistory.h"

namespace shell {

/// Rows that were taken back, by their ids in their ledgers.
using TakenRows = std::multimap<std::int32_t, core::TakenRow>;

/// Reads the rows that were taken back in these books. Throws on failure.
std::shared_ptr<const TakenRows> ReadTakenRows();

/// Returns the place of a row among those that were taken back; the end if it wasn't.
TakenRows::const_iterator FindTaken(const TakenRows& taken, const DigestRow& row);

/// The name of the run that RunOfTakenRows returns.
inline constexpr std::string_view kRunOfTakenRows = "taken back";

/// Returns the rows that were taken back and that none of the runs has, as a run of its own, so
/// that they can be posted again; nothing if there are none. Restored books have such rows, and
/// those whose run was dropped from the history. Throws on failure.
std::optional<PastRun> RunOfTakenRows(const TakenRows& taken, const std::vector<PastRun>& runs);

} // namespace shell
