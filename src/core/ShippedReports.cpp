#include "core/ShippedReports.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <map>
#include <string>

#include <fmt/core.h>

#include "platform/system/Paths.h"

namespace core {

namespace fs = std::filesystem;

namespace {

/// The file beside the reports that says what we put there: a checksum and a name a line.
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
        std::from_chars(line.data(), line.data() + kDigits, sum, kHex);
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

/// One file of ours; `known` is what we put there last, null the first time.
void Install(const fs::path& target, const std::string& ours, const Checksum* known) {
    if (!fs::exists(target)) {
        if (known == nullptr) platform::WriteFileAtomically(target, ours);
        return;
    }
    const std::string theirs = platform::ReadWholeFile(target);
    if (theirs == ours) return;
    if (known != nullptr && ChecksumOf(theirs) == *known) {
        platform::WriteFileAtomically(target, ours);
    } else if (known == nullptr || ChecksumOf(ours) != *known) {
        platform::WriteFileAtomically(target.string() + ".new", ours);
    }
}

} // namespace

fs::path ShippedReportsFolder() {
    const fs::path program = platform::ExecutablePath().parent_path();
    for (const fs::path& folder :
         {program / "share" / "Reports", program.parent_path() / "share" / "Vestrel" / "Reports"}) {
        std::error_code failure;
        if (fs::is_directory(folder, failure)) return folder;
    }
    return {};
}

void InstallShippedReports(const fs::path& shipped, const fs::path& folder) {
    std::error_code failure;
    if (shipped.empty()) return;
    fs::create_directories(folder, failure);
    try {
        Manifest known = ReadManifest(folder / kManifest);
        const Manifest before = known;
        for (const auto& entry : fs::directory_iterator(shipped)) {
            const std::string name = entry.path().filename().string();
            if (!entry.is_regular_file()) continue;
            const std::string ours = platform::ReadWholeFile(entry.path());
            const auto last = before.find(name);
            Install(folder / name, ours, last == before.end() ? nullptr : &last->second);
            known[name] = ChecksumOf(ours);
        }
        if (known != before) WriteManifest(folder / kManifest, known);
    } catch (const std::exception&) {
        // A folder that can't be written has the reports that it has.
    }
}

} // namespace core
