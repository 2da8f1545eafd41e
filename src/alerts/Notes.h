#pragma once

#include <string>
#include <string_view>

namespace alerts {

/// Shown in the note pad while it is empty.
inline constexpr std::string_view kNotesHint = "Type here to enter notes or reminders.";

/// Returns the notes, which are kept in a file beside the database; empty without a file. Throws
/// Error if the file can't be read.
std::string LoadNotes();

/// Replaces the file with this text in one step. Throws Error if it can't be written; the old notes
/// are kept then.
void SaveNotes(std::string_view text);

} // namespace alerts
