#include "platform/printing/ByteSink.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/values/Errors.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void FailToWrite(const fs::path& path, int reason) {
    throw Error("Can't write " + path.string() + ": " + std::generic_category().message(reason) +
                ".");
}

/// Returns the permissions that a new file of this user has.
mode_t UsualMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

bool IsWrittenInPlace(const fs::path& path) {
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    return fs::exists(status) && !fs::is_regular_file(status);
}

} // namespace

OutputFile::OutputFile(fs::path path) : path_(std::move(path)) {
    if (IsWrittenInPlace(path_)) {
        file_ = std::fopen(path_.c_str(), "wbe");
        if (!file_) FailToWrite(path_, errno);
        return;
    }
    std::error_code failure;
    const fs::path target = fs::is_symlink(path_, failure) ? fs::canonical(path_, failure) : path_;
    if (!failure) path_ = target;
    draft_ = path_.string() + ".XXXXXX";
    const int descriptor = mkostemp(draft_.data(), O_CLOEXEC);
    if (descriptor < 0) FailToWrite(path_, errno);
    fchmod(descriptor, UsualMode());
    file_ = fdopen(descriptor, "wb");
}

OutputFile::~OutputFile() {
    if (file_) std::fclose(file_);
    if (!draft_.empty()) unlink(draft_.c_str());
}

void OutputFile::Fail() {
    FailToWrite(path_, errno);
}

void OutputFile::Write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) Fail();
}

void OutputFile::Commit() {
    if (std::fflush(file_) != 0) Fail();
    if (draft_.empty()) return;
    // Synced to the disk before it gets its name: after a power cut, the name must not belong to a
    // part of it.
    if (fdatasync(fileno(file_)) != 0) Fail();
    if (std::fclose(std::exchange(file_, nullptr)) != 0) Fail();
    if (rename(draft_.c_str(), path_.c_str()) != 0) Fail();
    draft_.clear();
}

Spool::Spool() : file_(std::tmpfile()) {
    if (!file_) FailToWrite("a temporary file", errno);
}

Spool::~Spool() {
    std::fclose(file_);
}

void Spool::Write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) {
        FailToWrite("a temporary file", errno);
    }
}

void Spool::CopyTo(ByteSink& sink) {
    if (std::fflush(file_) != 0 || std::fseek(file_, 0, SEEK_SET) != 0) {
        FailToWrite("a temporary file", errno);
    }
    std::array<char, 65'536> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file_)) {
        sink.Write({part.data(), count});
    }
    if (std::ferror(file_)) throw Error("Can't read a temporary file.");
}

} // namespace platform
