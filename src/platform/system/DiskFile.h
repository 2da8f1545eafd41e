#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/values/Errors.h"

namespace platform {

/// A file that can't be written; the text names the file and the reason.
class DiskError : public Error {
  public:
    DiskError(const std::string& text, int number) : Error(text), number_(number) {}
    /// Returns the system's number of the error.
    int Number() const { return number_; }

  private:
    int number_;
};

/// A file open for writing; bytes go directly to the system, without a buffer of the program.
/// Throws a DiskError on every failure (a full disk, a folder that can't be written to).
class DiskFile {
  public:
    enum class Start {
        New,    ///< makes the file, private to the user; fails if it is there
        Append, ///< goes on after the end of an existing file
    };

    DiskFile(const std::filesystem::path& file, Start start);
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

    /// Adds bytes to the end.
    void Write(std::string_view bytes);
    /// Writes bytes at an offset counted from 0.
    void WriteAt(std::int64_t offset, std::string_view bytes);
    /// Removes the bytes from `size` on.
    void CutTo(std::int64_t size);
    /// Waits until everything written is on the disk.
    void Sync();

  private:
    void Wrote(std::size_t bytes);

    std::filesystem::path file_;
    int descriptor_ = -1;
    std::size_t waiting_ = 0; ///< bytes that the system wasn't yet asked to write to the disk
};

/// Waits until the names in a folder are on the disk; a failure is ignored.
void SyncFolder(const std::filesystem::path& folder);

} // namespace platform
