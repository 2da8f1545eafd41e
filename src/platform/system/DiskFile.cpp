#include "platform/system/DiskFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <string>
#include <system_error>

#include "platform/system/FileProbe.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

std::function<void()>& Probe() {
    static std::function<void()> probe;
    return probe;
}

[[noreturn]] void FailToWrite(const fs::path& file) {
    const int number = errno;
    throw DiskError(
        "Can't write " + file.string() + ": " + std::generic_category().message(number) + ".",
        number);
}

int OpenFor(const fs::path& file, DiskFile::Start start) {
    const int flags = start == DiskFile::Start::New ? O_CREAT | O_EXCL : 0;
    const int descriptor = open(file.c_str(), O_RDWR | O_CLOEXEC | flags, S_IRUSR | S_IWUSR);
    if (descriptor < 0) FailToWrite(file);
    return descriptor;
}

} // namespace

void SetFileProbe(std::function<void()> probe) {
    Probe() = std::move(probe);
}

void ProbeFile() {
    if (Probe()) Probe()();
}

DiskFile::DiskFile(const fs::path& file, Start start)
    : DiskFile(file, (ProbeFile(), OpenFor(file, start))) {
    if (start == Start::Append && lseek(descriptor_, 0, SEEK_END) < 0) FailToWrite(file_);
}

DiskFile::DiskFile(fs::path file, int descriptor)
    : file_(std::move(file)), descriptor_(descriptor) {}

DiskFile::~DiskFile() {
    if (descriptor_ >= 0) close(descriptor_);
}

std::int64_t DiskFile::Size() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) FailToWrite(file_);
    return status.st_size;
}

/// Lets the disk write while the rest is still being made, so that Sync has less to wait for.
void DiskFile::Wrote(std::size_t bytes) {
    constexpr std::size_t kBytesAtATime = 8 << 20;
    waiting_ += bytes;
    if (waiting_ < kBytesAtATime) return;
    waiting_ = 0;
    sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE); // Sync reports a failure
}

void DiskFile::Write(std::string_view bytes) {
    ProbeFile();
    const std::size_t size = bytes.size();
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) FailToWrite(file_);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    Wrote(size);
}

void DiskFile::WriteAt(std::int64_t offset, std::string_view bytes) {
    ProbeFile();
    const std::size_t size = bytes.size();
    while (!bytes.empty()) {
        const ssize_t written = pwrite(descriptor_, bytes.data(), bytes.size(), offset);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) FailToWrite(file_);
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += written;
    }
    Wrote(size);
}

void DiskFile::CutTo(std::int64_t size) {
    ProbeFile();
    if (ftruncate(descriptor_, size) != 0 || lseek(descriptor_, size, SEEK_SET) < 0) {
        FailToWrite(file_);
    }
}

void DiskFile::Sync() {
    ProbeFile();
    if (fsync(descriptor_) != 0) FailToWrite(file_);
}

void SyncFolder(const fs::path& folder) {
    const int descriptor =
        open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace platform
