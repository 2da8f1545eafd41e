#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

namespace platform {

/// A file open for writing; what is written goes to the system at once. Every failure is an Error
/// that names the file and the reason (a full disk, a folder that can't be written to).
class DiskFile {
  public:
    enum class Start {
        New,    ///< makes the file, private to the user; fails if it is there
        Append, ///< goes on behind the end of an existing file
    };

    DiskFile(std::filesystem::path file, Start start);
    /// Takes over an open descriptor of `file`.
    DiskFile(std::filesystem::path file, int descriptor);
    ~DiskFile();
    DiskFile(DiskFile&& other) noexcept
        : file_(std::move(other.file_)), descriptor_(std::exchange(other.descriptor_, -1)) {}
    DiskFile& operator=(DiskFile&&) = delete;
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;

    const std::filesystem::path& File() const { return file_; }
    int Descriptor() const { return descriptor_; }
    std::int64_t Size() const;

    /// Adds to the end.
    void Write(std::string_view bytes);
    /// Writes at an offset counted from 0.
    void WriteAt(std::int64_t offset, std::string_view bytes);
    /// Waits until everything written is on the disk.
    void Sync();

  private:
    std::filesystem::path file_;
    int descriptor_ = -1;
};

/// Waits until the names in a folder are on the disk; a failure is skipped.
void SyncFolder(const std::filesystem::path& folder);

} // namespace platform
