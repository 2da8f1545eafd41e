#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace shell {

// The text that the books keep of a row that is taken back, to make the same row of it again: its
// fields, and the links of the files that are attached to it. Failures are thrown.

/// Returns the content of a stored row of this kind.
std::string ContentOf(core::RecordKind kind, std::int32_t id, platform::Recordset& stored);

/// Writes the row into its table again, and the links of its files. A payer or payee that was
/// deleted since is no longer linked, as in all other transactions; its name stays. Returns false,
/// and writes nothing, if the content can't be read.
bool RestoreContent(std::string_view table, const std::string& content);

} // namespace shell
