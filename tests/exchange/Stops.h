#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace tests {

/// Runs `work` on the process's books again and again, each time in a process of its own that is
/// killed before another step that writes to the database or to a file, and at last without being
/// killed. After each, `check` looks at what is there, with the books closed; the folder is then
/// put back as it was. Returns the number of steps.
int StopAtEveryStep(const std::filesystem::path& folder, const std::function<void()>& work,
                    const std::function<void(bool wasStopped)>& check);

/// Runs `work` in a process of its own in which no file may grow beyond `bytes`, as on a full disk;
/// its exceptions are ignored. The process's books are open in it.
void WithLittleRoom(std::size_t bytes, const std::function<void()>& work);

std::string ReadText(const std::filesystem::path& file);
void WriteText(const std::filesystem::path& file, const std::string& text);
/// The names of a folder's files, sorted and separated by blanks.
std::string NamesIn(const std::filesystem::path& folder);

} // namespace tests
