#include "exchange/Container.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <system_error>

#include <fmt/core.h>

#include "core/MessagePump.h"
#include "exchange/FixedRecord.h"
#include "platform/database/DatabaseCopy.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kTypeAt = 260;
constexpr std::size_t kFormatAt = 262;
constexpr std::size_t kSizeAt = 264;
constexpr std::size_t kPositionAt = 268;
constexpr std::size_t kDateAt = 272;
constexpr std::size_t kDateSize = 30;

constexpr std::size_t kPackedAtOnce = 100'000;

/// An error with the system's error number.
class PackError : public platform::Error {
  public:
    PackError(int number, const std::string& text) : Error(text), number_(number) {}
    explicit PackError(int number) : PackError(number, std::generic_category().message(number)) {}
    int Number() const { return number_; }

  private:
    int number_;
};

/// A source that can't be read to its end.
class SourceError : public PackError {
    using PackError::PackError;
};

/// A file open for reading.
class Source {
  public:
    explicit Source(const fs::path& file) : descriptor_(open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (descriptor_ < 0) throw PackError(errno);
    }
    ~Source() { close(descriptor_); }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    std::int64_t Size() const { return lseek(descriptor_, 0, SEEK_END); }

    /// Reads exactly `size` bytes at `at`.
    void Read(char* bytes, std::size_t size, std::int64_t at) const {
        while (size > 0) {
            const ssize_t got = pread(descriptor_, bytes, size, at);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) throw SourceError(errno);
            if (got == 0) throw SourceError(EIO, "the file became shorter while it was read");
            bytes += got;
            size -= static_cast<std::size_t>(got);
            at += got;
        }
    }

  private:
    int descriptor_;
};

platform::DiskFile OpenContainer(const fs::path& container) {
    using platform::DiskFile;
    std::error_code ignored;
    return {container,
            fs::exists(container, ignored) ? DiskFile::Start::Append : DiskFile::Start::New};
}

/// Writes the header of an entry at the container's end; returns where the entry's bytes begin,
/// counted from 0.
std::int64_t WriteHeader(platform::DiskFile& container, const fs::path& source, FileType type,
                         std::int64_t size) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    const std::int64_t data = container.Size() + kHeaderLength;
    if (size > kMost || data + size > kMost) {
        throw PackError(EFBIG, "a container can't hold more than 2 GB");
    }
    EntryHeader header;
    header.filePath = source.string();
    header.fileType = static_cast<std::int16_t>(type);
    header.format = kContainerFormat;
    header.fileSize = static_cast<std::int32_t>(size);
    header.dataPosition = static_cast<std::int32_t>(data + 1);
    header.fileDate = FileDateText(source);
    container.Write(HeaderBytes(header));
    return data;
}

void CopyBlocks(platform::DiskFile& container, const Source& source, std::int64_t size) {
    std::string block;
    for (std::int64_t at = 0; at < size; at += static_cast<std::int64_t>(block.size())) {
        block.resize(std::min(kPackedAtOnce, static_cast<std::size_t>(size - at)));
        source.Read(block.data(), block.size(), at);
        container.Write(block);
        core::LetMessagesRun();
    }
}

bool Pack(const fs::path& source, std::string& result, const std::function<void()>& write) {
    std::error_code failure;
    if (!fs::exists(source, failure)) {
        result = "File not found";
        return false;
    }
    try {
        if (!fs::is_regular_file(source, failure)) throw PackError(EINVAL, "it is not a file");
        write();
        result = "Success";
        return true;
    } catch (const PackError& error) {
        result = fmt::format("Error {}, {}", error.Number(), error.what());
    } catch (const platform::DiskError& error) {
        result = fmt::format("Error {}, {}", error.Number(), error.what());
    } catch (const platform::DatabaseError& error) {
        result = fmt::format("Error {}, {}", error.Code(), error.what());
    } catch (const std::exception& error) {
        result = fmt::format("Error {}, {}", EIO, error.what());
    }
    return false;
}

} // namespace

std::string HeaderBytes(const EntryHeader& header) {
    FixedRecordWriter record(kHeaderSize);
    if (!record.SetText(0, kFilePathSize, header.filePath)) {
        throw PackError(ENAMETOOLONG,
                        fmt::format("the path is longer than {} bytes", kFilePathSize));
    }
    record.SetInteger(kTypeAt, header.fileType);
    record.SetInteger(kFormatAt, header.format);
    record.SetLong(kSizeAt, header.fileSize);
    record.SetLong(kPositionAt, header.dataPosition);
    record.SetText(kDateAt, kDateSize, header.fileDate);
    return record.Bytes();
}

EntryHeader ReadHeader(std::string_view bytes) {
    const FixedRecord record(bytes);
    EntryHeader header;
    header.filePath = record.Text(0, kFilePathSize);
    header.fileType = record.Integer(kTypeAt);
    header.format = record.Integer(kFormatAt);
    header.fileSize = record.Long(kSizeAt);
    header.dataPosition = record.Long(kPositionAt);
    header.fileDate = record.Text(kDateAt, kDateSize);
    return header;
}

std::string FileDateText(const fs::path& file) {
    const platform::Moment changed = platform::ChangedAt(file);
    if (!changed.day.IsSet()) return {};
    return fmt::format("{} {:02}:{:02}:{:02}", changed.day.ToText(), changed.second / 3600,
                       changed.second / 60 % 60, changed.second % 60);
}

bool PackFile(const fs::path& container, const fs::path& source, FileType type,
              std::string& result) {
    return Pack(source, result, [&] {
        const Source from(source);
        platform::DiskFile out = OpenContainer(container);
        const std::int64_t size = from.Size();
        const std::int64_t begin = WriteHeader(out, source, type, size) - kHeaderLength;
        try {
            CopyBlocks(out, from, size);
        } catch (const SourceError&) {
            // If the entry stayed shorter than its header says, the entries after it couldn't be
            // found.
            out.CutTo(begin);
            throw;
        }
    });
}

bool PackDatabase(const fs::path& container, const fs::path& database,
                  const std::function<void()>& progress, std::string& result) {
    return Pack(database, result, [&] {
        const platform::DatabaseCopy copy(database);
        platform::DiskFile out = OpenContainer(container);
        const std::int64_t data = WriteHeader(out, database, FileType::Database, copy.Size());
        copy.WriteTo(out, data, [&](std::int64_t) {
            if (progress) progress();
        });
        if (out.Size() != data + copy.Size()) throw PackError(EIO, "the copy is not whole");
    });
}

void SyncContainer(const fs::path& container) {
    OpenContainer(container).Sync();
    platform::SyncFolder(container.parent_path());
}

} // namespace exchange
