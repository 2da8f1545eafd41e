#include "alerts/Notes.h"

#include "core/Globals.h"
#include "platform/system/Paths.h"

namespace alerts {

namespace {

std::string NotesFile() {
    return platform::AddBackslash(core::App().DbPath) + "Notes.txt";
}

} // namespace

std::string LoadNotes() {
    if (!platform::FileExists(NotesFile())) return {};
    return platform::ReadWholeFile(NotesFile());
}

void SaveNotes(std::string_view text) {
    platform::WriteFileAtomically(NotesFile(), text);
}

} // namespace alerts
