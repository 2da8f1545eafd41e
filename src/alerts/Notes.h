#pragma once

#include <string>
#include <string_view>

namespace alerts {

/// What the note pad shows before anything was written.
inline constexpr std::string_view kNotesHint = "Type here to enter notes or reminders.";

/// The text of the note pad, the file beside the database; the hint when there is none. A file that
/// can't be read is an Error.
std::string LoadNotes();

/// Replaces the file by this text in one step. An Error that says why when it can't be written; the
/// old notes are then still there.
void SaveNotes(std::string_view text);

} // namespace alerts
