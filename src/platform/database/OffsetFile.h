#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <exception>
#include <string>

#include "platform/system/DiskFile.h"

namespace platform {

/// Lets the engine write a database into the middle of a file: byte 0 of the database is byte
/// `offset` of `out`. During its lifetime the engine knows it as a file system named Name(), in
/// which every file is this one.
class OffsetFile {
  public:
    OffsetFile(DiskFile& out, std::int64_t offset);
    ~OffsetFile();
    OffsetFile(const OffsetFile&) = delete;
    OffsetFile& operator=(const OffsetFile&) = delete;

    const char* Name() const { return name_.c_str(); }

    /// Writes the rest of the collected bytes. Throws if anything went wrong while the engine
    /// wrote.
    void Finish();

    // The engine's requests to the file; each returns false on failure.
    bool Read(void* bytes, int count, std::int64_t at, int& got);
    bool Write(const void* bytes, int count, std::int64_t at);
    std::int64_t Size() const { return size_; }

  private:
    bool Flush();
    /// Writes this many of the collected bytes.
    bool WriteOut(std::int64_t count);
    std::int64_t Collected() const { return static_cast<std::int64_t>(collected_.size()); }

    DiskFile& out_;
    std::int64_t offset_;
    std::int64_t size_ = 0;
    /// Pages that follow one another are written together.
    std::string collected_;
    std::int64_t collectedAt_ = 0;
    std::exception_ptr failure_;
    std::string name_;
    sqlite3_vfs system_{};
};

} // namespace platform
