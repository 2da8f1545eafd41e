#include "platform/database/OffsetFile.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace platform {

namespace {

/// The bytes are written in blocks that begin at multiples of this number in the file, wherever the
/// database begins. Otherwise each block would end within a page of the system's cache, and the
/// next one would have to complete that page.
constexpr std::int64_t kBlockSize = 1 << 18;

/// An open file as the engine holds it.
struct OpenFile {
    sqlite3_file base;
    OffsetFile* file;
};

OffsetFile& Of(sqlite3_file* open) {
    return *reinterpret_cast<OpenFile*>(open)->file;
}

int ReadFile(sqlite3_file* open, void* bytes, int count, sqlite3_int64 at) {
    int got = 0;
    if (!Of(open).Read(bytes, count, at, got)) return SQLITE_IOERR_READ;
    if (got == count) return SQLITE_OK;
    std::memset(static_cast<char*>(bytes) + got, 0, static_cast<std::size_t>(count - got));
    return SQLITE_IOERR_SHORT_READ;
}

int WriteFile(sqlite3_file* open, const void* bytes, int count, sqlite3_int64 at) {
    return Of(open).Write(bytes, count, at) ? SQLITE_OK : SQLITE_IOERR_WRITE;
}

int SizeOfFile(sqlite3_file* open, sqlite3_int64* size) {
    *size = Of(open).Size();
    return SQLITE_OK;
}

int IsReserved(sqlite3_file*, int* answer) {
    *answer = 0;
    return SQLITE_OK;
}

// The file belongs to this process only, and its creator syncs it: there is nothing to close, cut,
// sync or lock.
const sqlite3_io_methods kMethods = {
    .iVersion = 1,
    .xClose = [](sqlite3_file*) { return SQLITE_OK; },
    .xRead = ReadFile,
    .xWrite = WriteFile,
    .xTruncate = [](sqlite3_file*, sqlite3_int64) { return SQLITE_OK; },
    .xSync = [](sqlite3_file*, int) { return SQLITE_OK; },
    .xFileSize = SizeOfFile,
    .xLock = [](sqlite3_file*, int) { return SQLITE_OK; },
    .xUnlock = [](sqlite3_file*, int) { return SQLITE_OK; },
    .xCheckReservedLock = IsReserved,
    .xFileControl = [](sqlite3_file*, int, void*) { return SQLITE_NOTFOUND; },
    .xSectorSize = [](sqlite3_file*) { return 0; },
    .xDeviceCharacteristics = [](sqlite3_file*) { return 0; },
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int OpenThis(sqlite3_vfs* system, const char*, sqlite3_file* open, int flags, int* outFlags) {
    auto* const opened = reinterpret_cast<OpenFile*>(open);
    opened->base.pMethods = &kMethods;
    opened->file = static_cast<OffsetFile*>(system->pAppData);
    if (outFlags != nullptr) *outFlags = flags;
    return SQLITE_OK;
}

// Answers that there is no such file: there is never a journal beside the database.
int FindFile(sqlite3_vfs*, const char*, int, int* answer) {
    *answer = 0;
    return SQLITE_OK;
}

int FullName(sqlite3_vfs*, const char* name, int size, char* full) {
    sqlite3_snprintf(size, full, "%s", name);
    return SQLITE_OK;
}

} // namespace

OffsetFile::OffsetFile(DiskFile& out, std::int64_t offset) : out_(out), offset_(offset) {
    static std::atomic<int> last = 0;
    name_ = "vestrel-offset-" + std::to_string(++last);
    system_ = *sqlite3_vfs_find(nullptr);
    system_.iVersion = 1;
    system_.szOsFile = sizeof(OpenFile);
    system_.zName = name_.c_str();
    system_.pNext = nullptr;
    system_.pAppData = this;
    system_.xOpen = OpenThis;
    system_.xAccess = FindFile;
    system_.xFullPathname = FullName;
    sqlite3_vfs_register(&system_, 0);
}

OffsetFile::~OffsetFile() {
    sqlite3_vfs_unregister(&system_);
}

bool OffsetFile::Read(void* bytes, int count, std::int64_t at, int& got) {
    if (!Flush()) return false;
    const std::int64_t most = std::clamp<std::int64_t>(size_ - at, 0, count);
    const ssize_t read =
        pread(out_.Descriptor(), bytes, static_cast<std::size_t>(most), offset_ + at);
    got = static_cast<int>(std::max<ssize_t>(read, 0));
    return read >= 0;
}

bool OffsetFile::Write(const void* bytes, int count, std::int64_t at) {
    if (at != collectedAt_ + Collected()) {
        if (!Flush()) return false;
        collectedAt_ = at;
    }
    collected_.append(static_cast<const char*>(bytes), static_cast<std::size_t>(count));
    size_ = std::max(size_, at + count);
    const std::int64_t end = offset_ + collectedAt_ + Collected();
    const std::int64_t whole = end - end % kBlockSize - (offset_ + collectedAt_);
    return whole <= 0 || WriteOut(whole);
}

bool OffsetFile::Flush() {
    return WriteOut(Collected());
}

// The engine is written in C: no exception may pass through it.
bool OffsetFile::WriteOut(std::int64_t count) {
    if (failure_) return false;
    if (count == 0) return true;
    const auto size = static_cast<std::size_t>(count);
    try {
        out_.WriteAt(offset_ + collectedAt_, std::string_view(collected_).substr(0, size));
        collectedAt_ += count;
        collected_.erase(0, size);
        return true;
    } catch (...) {
        failure_ = std::current_exception();
        return false;
    }
}

void OffsetFile::Finish() {
    Flush();
    if (failure_) std::rethrow_exception(failure_);
}

} // namespace platform
