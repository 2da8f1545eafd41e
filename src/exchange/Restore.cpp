#include "exchange/Restore.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <map>

#include <fmt/core.h>

#include "core/MessagePump.h"
#include "exchange/BackupConfig.h"
#include "platform/database/Integrity.h"
#include "platform/system/Clock.h"
#include "platform/system/DiskFile.h"
#include "platform/values/Conversions.h"
#include "platform/values/Csv.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "store/CreateDatabase.h"
#include "store/NewFile.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kCopiedAtOnce = 1 << 20;

/// Returns the parts of a path of this or another system.
std::vector<std::string> PartsOf(std::string path) {
    std::ranges::replace(path, '\\', '/');
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        if (end > begin) parts.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    // A drive letter becomes a folder.
    if (!parts.empty() && parts.front().size() == 2 && parts.front().back() == ':') {
        parts.front().pop_back();
    }
    return parts;
}

bool IsHarmless(const std::string& part) {
    return part != "." && part != ".." &&
           std::ranges::none_of(part, [](unsigned char c) { return c < ' ' || c == 0x7F; });
}

/// Returns the exact name of one of the program's own files, by which the program finds it.
std::string OwnName(const std::string& name) {
    for (const std::string_view own :
         {store::kDatabaseFile, store::kVersionFile, kBackupConfigFile}) {
        if (platform::EqualIgnoringCase(name, own)) return std::string(own);
    }
    return name;
}

/// Returns the moment in a header's text; an unset date if it can't be read.
platform::Moment MomentOf(const std::string& text) {
    const auto blank = std::min(text.find(' '), text.size());
    const auto day = platform::Date::TryParse(text.substr(0, blank));
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!day || std::sscanf(text.c_str() + blank, " %2d:%2d:%2d", &hour, &minute, &second) != 3) {
        return {};
    }
    return {*day, (hour * 60 + minute) * 60 + second};
}

/// Copies the bytes of an entry into a new file.
void Extract(const fs::path& container, const EntryHeader& header, const fs::path& file) {
    std::ifstream source(container, std::ios::binary);
    source.seekg(header.dataPosition - 1);
    fs::create_directories(file.parent_path());
    platform::DiskFile out(file, platform::DiskFile::Start::New);
    std::string block;
    for (auto left = static_cast<std::size_t>(header.fileSize); left > 0; left -= block.size()) {
        block.resize(std::min(left, kCopiedAtOnce));
        source.read(block.data(), static_cast<std::streamsize>(block.size()));
        if (!source) {
            throw platform::Error(fmt::format("{} can't be read", container.string()));
        }
        out.Write(block);
        core::LetMessagesRun();
    }
    out.Sync();
}

/// Returns why an entry isn't restored; empty if it can be.
std::string Objection(const ContainerEntry& entry, const fs::path& place, bool isTaken) {
    if (entry.state == EntryState::Cut) return "the backup ends before this file does";
    if (entry.state == EntryState::Damaged) return "the backup is damaged here";
    if (place.empty()) return "its path leads out of the folder";
    if (isTaken) return "the backup holds another file of this name";
    return {};
}

class Restoration {
  public:
    Restoration(const fs::path& container, const fs::path& folder, const RestoreListener& listener)
        : container_(container), listener_(listener) {
        report_.folder = folder;
    }

    void Restore(const ContainerEntry& entry) {
        const fs::path place = PlaceOf(entry.header);
        RestoredFile file{entry.header.filePath, {}, {}};
        const auto [before, isNew] = taken_.emplace(place, entry.header.filePath);
        // A file that several records refer to is in the backup once for each of them.
        const bool isSame = !isNew && before->second == entry.header.filePath &&
                            entry.header.fileType != static_cast<std::int16_t>(FileType::Database);
        if (isSame) return;
        file.reason = Objection(entry, place, !isNew);
        if (file.reason.empty()) ExtractTo(report_.folder / place, entry, file);
        if (listener_) listener_(file);
        report_.files.push_back(std::move(file));
        core::LetMessagesRun();
    }

    RestoreReport Finish() {
        const fs::path database = report_.folder / store::kDatabaseFile;
        report_.hasDatabase = fs::exists(database);
        if (!report_.hasDatabase) return report_;
        try {
            report_.faults = platform::CheckIntegrity(database, platform::CheckDepth::Quick);
        } catch (const platform::Error& failure) {
            report_.faults = {failure.what()};
        }
        // Reading makes the engine create these files, which it can't remove in read-only mode.
        std::error_code ignored;
        for (const char* const companion : {"-shm", "-wal"})
            fs::remove(database.string() + companion, ignored);
        platform::SyncFolder(report_.folder);
        return report_;
    }

    bool HasFiles() const {
        return std::ranges::any_of(report_.files,
                                   [](const RestoredFile& file) { return file.reason.empty(); });
    }

    std::string FirstReason() const {
        return report_.files.empty() ? "it holds no database" : report_.files.front().reason;
    }

  private:
    void ExtractTo(const fs::path& target, const ContainerEntry& entry, RestoredFile& file) const {
        try {
            Extract(container_, entry.header, target);
            platform::SetChangedAt(target, MomentOf(entry.header.fileDate));
            file.restored = target;
        } catch (const std::exception& failure) {
            std::error_code ignored;
            fs::remove(target, ignored);
            file.reason = failure.what();
        }
    }

    const fs::path& container_;
    const RestoreListener& listener_;
    std::map<fs::path, std::string> taken_;
    RestoreReport report_;
};

} // namespace

bool RestoreReport::IsWhole() const {
    return hasDatabase && faults.empty() &&
           std::ranges::all_of(files, [](const RestoredFile& file) { return file.reason.empty(); });
}

fs::path PlaceOf(const EntryHeader& header) {
    const std::vector<std::string> parts = PartsOf(header.filePath);
    if (parts.empty() || !std::ranges::all_of(parts, IsHarmless)) return {};
    switch (header.fileType) {
        case static_cast<std::int16_t>(FileType::Database):
            return OwnName(parts.back());
        case static_cast<std::int16_t>(FileType::Document):
        case static_cast<std::int16_t>(FileType::FileObject):
            break;
        default:
            return {};
    }
    const bool isDocument = header.fileType == static_cast<std::int16_t>(FileType::Document);
    fs::path place = isDocument ? "Documents" : "Files";
    for (const std::string& part : parts)
        place /= part;
    return place;
}

RestoreReport RestoreContainer(const fs::path& container, const fs::path& folder,
                               RestoreScope scope, const RestoreListener& listener) {
    const std::vector<ContainerEntry> entries = ListContainer(container);
    std::error_code ignored;
    if (fs::exists(folder, ignored) && !fs::is_empty(folder, ignored)) {
        throw platform::Error(fmt::format(
            "{} is there already; name a folder that isn't, so that nothing is overwritten",
            folder.string()));
    }
    store::NewFolder made(folder, store::UnkeptFiles::AreRemoved);
    Restoration restoration(container, folder, listener);
    for (const ContainerEntry& entry : entries) {
        const bool isOwn = entry.header.fileType == static_cast<std::int16_t>(FileType::Database);
        if (isOwn || scope == RestoreScope::Everything) restoration.Restore(entry);
    }
    if (!restoration.HasFiles()) {
        throw platform::Error(fmt::format("Nothing could be restored from {}: {}",
                                          container.string(), restoration.FirstReason()));
    }
    made.Keep();
    return restoration.Finish();
}

std::string ListAsCsv(const std::vector<ContainerEntry>& entries) {
    std::string csv =
        "\"FilePath\",\"FileType\",\"FileSize\",\"DataPosition\",\"FileDate\",\"State\"\n";
    for (const ContainerEntry& entry : entries) {
        const EntryHeader& header = entry.header;
        csv +=
            fmt::format("{},{},{},{},{},{}\n", platform::CsvText(header.filePath), header.fileType,
                        header.fileSize, header.dataPosition, platform::CsvText(header.fileDate),
                        platform::CsvText(StateWord(entry.state)));
    }
    return csv;
}

} // namespace exchange
