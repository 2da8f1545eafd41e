#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

// A path as the settings hold it ends in a separator if it names a directory. Both "/" and "\" are
// taken for separators when one is looked for; the machine's own is the one appended.

/// Returns `path` with the separator appended if its last character isn't one.
std::string AddBackslash(std::string_view path);

/// Returns the text up to and including the last separator; unchanged if it ends in one, empty if
/// it holds none.
std::string PathOf(std::string_view file);

/// Returns true if a file or directory of this trimmed name exists; false on any failure and for an
/// empty name.
bool FileExists(std::string_view path);

/// Returns the full path of the running executable.
std::filesystem::path ExecutablePath();

/// Returns the user's own folder.
std::filesystem::path HomeFolder();

/// Return `$XDG_CONFIG_HOME` or its default, and `$XDG_DATA_HOME` or its default.
std::filesystem::path ConfigHome();
std::filesystem::path DataHome();

/// Deletes the files of `directory` whose names match `pattern` (`*` and `?`, without regard to
/// case). Directories stay; failures are ignored.
void DeleteMatching(const std::filesystem::path& directory, std::string_view pattern);

/// Makes an empty file that only its owner can open. Returns 0, or the system's error number:
/// EEXIST leaves the existing file untouched.
int MakePrivateFile(const std::filesystem::path& file);

/// Replaces `file` by `contents` in one step, so that a reader sees either the old or the new text;
/// `mode` is its permission bits. Throws an Error with the reason on failure; the old file is then
/// unchanged.
void WriteFileAtomically(const std::filesystem::path& file, std::string_view contents,
                         std::filesystem::perms mode = std::filesystem::perms::owner_read |
                                                       std::filesystem::perms::owner_write);

/// Returns the contents of a file. Throws an Error with the reason on failure.
std::string ReadWholeFile(const std::filesystem::path& file);

} // namespace platform
