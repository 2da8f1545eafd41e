#include "platform/system/Paths.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

#include "platform/values/Text.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSeparators = "/\\";

// Returns a base directory; one that isn't absolute counts as not given.
fs::path BaseDirectory(const char* variable, const char* standard) {
    if (const char* given = std::getenv(variable); given != nullptr && *given == '/') return given;
    return HomeFolder() / standard;
}

bool Matches(std::string_view name, std::string_view pattern) {
    // The place of the last `*`, and the part of the name that it has matched so far.
    std::size_t star = std::string_view::npos;
    std::size_t swallowed = 0;
    std::size_t n = 0;
    std::size_t p = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            swallowed = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++n;
            ++p;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++swallowed;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

} // namespace

std::string AddBackslash(std::string_view path) {
    std::string text(path);
    if (path.empty() || kSeparators.find(path.back()) == std::string_view::npos) {
        text += fs::path::preferred_separator;
    }
    return text;
}

std::string PathOf(std::string_view file) {
    const auto last = file.find_last_of(kSeparators);
    return last == std::string_view::npos ? std::string() : std::string(file.substr(0, last + 1));
}

bool FileExists(std::string_view path) {
    const auto name = Trim(path);
    std::error_code failure;
    return !name.empty() && fs::exists(fs::path(name), failure) && !failure;
}

fs::path ExecutablePath() {
    return fs::read_symlink("/proc/self/exe");
}

fs::path HomeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
    const passwd* user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

fs::path ConfigHome() {
    return BaseDirectory("XDG_CONFIG_HOME", ".config");
}

fs::path DataHome() {
    return BaseDirectory("XDG_DATA_HOME", ".local/share");
}

void DeleteMatching(const fs::path& directory, std::string_view pattern) {
    const std::string lowered = ToLower(pattern);
    std::vector<fs::path> found;
    std::error_code failure;
    for (fs::directory_iterator entry(directory, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        std::error_code unknown;
        if (entry->is_directory(unknown)) continue;
        if (Matches(ToLower(entry->path().filename().string()), lowered)) {
            found.push_back(entry->path());
        }
    }
    for (const fs::path& file : found)
        fs::remove(file, failure);
}

} // namespace platform
