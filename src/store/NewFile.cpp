#include "store/NewFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ranges>
#include <system_error>
#include <utility>

#include <fmt/core.h>

#include "platform/values/Errors.h"

namespace store {

namespace fs = std::filesystem;

namespace {

void RefuseTaken(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(file, error);
    if (status.type() == fs::file_type::not_found) return;
    if (fs::exists(status)) {
        throw platform::Error(fmt::format("{} already exists", file.string()));
    }
    throw platform::Error(fmt::format("{}: {}", file.string(), error.message()));
}

fs::path NotTaken(fs::path file) {
    RefuseTaken(file);
    return file;
}

[[noreturn]] void ThrowCannotMake(const fs::path& file, const std::string& reason) {
    throw platform::Error(fmt::format("{} can't be made: {}", file.string(), reason));
}

fs::path WithEnding(fs::path file, const char* ending) {
    return file += ending;
}

/// Returns whether the former holder of the lock has removed its file, so that it no longer locks
/// anything.
bool IsRemoved(int handle) {
    struct stat status = {};
    return fstat(handle, &status) == 0 && status.st_nlink == 0;
}

} // namespace

MakersLock::MakersLock(const fs::path& file) : path_(WithEnding(file, ".lock")), handle_(-1) {
    do {
        if (handle_ >= 0) close(handle_);
        handle_ = open(path_.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (handle_ < 0) ThrowCannotMake(file, std::generic_category().message(errno));
        // On a file system without locks there is no second program either.
        while (flock(handle_, LOCK_EX) != 0 && errno == EINTR) {
        }
    } while (IsRemoved(handle_));
}

MakersLock::~MakersLock() {
    unlink(path_.c_str());
    close(handle_);
}

NewFile::NewFile(fs::path file)
    : file_(NotTaken(std::move(file))), draft_(WithEnding(file_, ".new")), lock_(file_) {
    RefuseTaken(file_); // by the program that had the lock before
    RemoveDraft();
}

NewFile::~NewFile() {
    RemoveDraft();
}

void NewFile::RemoveDraft() const {
    std::error_code ignored;
    for (const char* companion : {"", "-wal", "-shm", "-journal"}) {
        fs::remove(WithEnding(draft_, companion), ignored);
    }
}

void NewFile::Publish() {
    RefuseTaken(file_);
    std::error_code error;
    // If the log could not be written back when the draft was closed, it holds a part of the draft.
    if (fs::exists(WithEnding(draft_, "-wal"), error))
        ThrowCannotMake(file_, "it could not be written to the disk");
    fs::rename(draft_, file_, error);
    if (error) ThrowCannotMake(file_, error.message());
}

NewFolder::NewFolder(const fs::path& folder, UnkeptFiles files) : files_(files) {
    std::vector<fs::path> missing;
    std::error_code error;
    fs::path path = fs::absolute(folder, error).lexically_normal();
    if (!path.has_filename()) path = path.parent_path();
    for (; !fs::exists(path, error) && path.has_relative_path(); path = path.parent_path()) {
        missing.insert(missing.begin(), path); // the outermost first
    }
    for (const fs::path& next : missing) {
        const bool isMade = fs::create_directory(next, error);
        if (error) {
            RemoveMade();
            ThrowCannotMake(next, error.message());
        }
        if (!isMade) continue; // another program was first
        made_.push_back(next);
        fs::permissions(next, fs::perms::owner_all, error);
    }
    if (!fs::is_directory(folder, error)) {
        throw platform::Error(fmt::format("{} is not a directory", folder.string()));
    }
}

NewFolder::~NewFolder() {
    RemoveMade();
}

void NewFolder::RemoveMade() const {
    std::error_code ignored;
    if (files_ == UnkeptFiles::AreRemoved && !made_.empty()) fs::remove_all(made_.back(), ignored);
    for (const fs::path& folder : std::views::reverse(made_))
        fs::remove(folder, ignored); // fails if another program has put something into it
}

} // namespace store
