#include "core/ShippedFiles.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <map>
#include <string>
#include <utility>

#include <fmt/core.h>

#include "platform/system/Paths.h"

namespace core {

namespace fs = std::filesystem;

namespace {

/// The file in the folder that lists what we put there: a checksum and a name per line.
constexpr std::string_view kManifest = ".shipped";

using Checksum = std::uint64_t;
using Manifest = std::map<std::string, Checksum>;

Checksum ChecksumOf(std::string_view text) {
    constexpr Checksum kStart = 0xCBF29CE484222325U;
    constexpr Checksum kPrime = 0x100000001B3U;
    Checksum sum = kStart;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * kPrime;
    return sum;
}

constexpr int kHex = 16;
constexpr std::size_t kDigits = 16;

Manifest ReadManifest(const fs::path& file) {
    Manifest known;
    if (!fs::exists(file)) return known;
    const std::string text = platform::ReadWholeFile(file);
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        Checksum sum = 0;
        if (line.size() <= kDigits + 1) continue;
        const std::string_view digits = line.substr(0, kDigits);
        std::from_chars(digits.begin(), digits.end(), sum, kHex);
        known[std::string(line.substr(kDigits + 1))] = sum;
    }
    return known;
}

void WriteManifest(const fs::path& file, const Manifest& known) {
    std::string text;
    for (const auto& [name, sum] : known)
        text += fmt::format("{:016x} {}\n", sum, name);
    platform::WriteFileAtomically(file, text);
}

/// One file of ours. `known` is what we put there last; null the first time.
class Installation {
  public:
    Installation(fs::path target, const std::string& ours, const Checksum* known)
        : target_(std::move(target)), ours_(ours), known_(known) {}

    void Run() const {
        if (!fs::exists(target_)) {
            // The user has deleted what was there before.
            if (known_ == nullptr) Write(target_);
            return;
        }
        const std::string present = platform::ReadWholeFile(target_);
        if (present == ours_) return;
        if (IsPutByUs(present)) {
            Write(target_);
        } else if (known_ == nullptr || ChecksumOf(ours_) != *known_) {
            Write(Neighbour());
        }
    }

  private:
    bool IsPutByUs(const std::string& text) const {
        return known_ != nullptr && ChecksumOf(text) == *known_;
    }

    /// Returns a free name beside the file; a file there that the user has changed is kept too.
    fs::path Neighbour() const {
        fs::path file = target_;
        do {
            file += ".new";
        } while (fs::exists(file) && !IsPutByUs(platform::ReadWholeFile(file)));
        return file;
    }

    void Write(const fs::path& file) const { platform::WriteFileAtomically(file, ours_); }

    fs::path target_;
    const std::string& ours_;
    const Checksum* known_;
};

/// Installs one file and notes it in `known`. A file that fails isn't noted, and doesn't keep the
/// others from being installed.
void Install(const fs::path& shipped, const fs::path& folder, Manifest& known) {
    try {
        const std::string name = shipped.filename().string();
        const std::string ours = platform::ReadWholeFile(shipped);
        const auto last = known.find(name);
        Installation(folder / name, ours, last == known.end() ? nullptr : &last->second).Run();
        known[name] = ChecksumOf(ours);
    } catch (const std::exception&) {
        // The next start tries again.
    }
}

} // namespace

void InstallShippedFiles(const fs::path& shipped, const fs::path& folder) {
    std::error_code failure;
    if (shipped.empty()) return;
    fs::create_directories(folder, failure);
    try {
        Manifest known = ReadManifest(folder / kManifest);
        const Manifest before = known;
        for (const auto& entry : fs::directory_iterator(shipped)) {
            if (entry.is_regular_file()) Install(entry.path(), folder, known);
        }
        if (known != before) WriteManifest(folder / kManifest, known);
    } catch (const std::exception&) {
        // A folder that can't be written keeps the files that it has.
    }
}

} // namespace core
