#include "store/NewFile.h"

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

} // namespace

NewFile::NewFile(fs::path file) : file_(std::move(file)), draft_(file_) {
    draft_ += ".new";
    RefuseTaken(file_);
    RemoveDraft();
}

NewFile::~NewFile() {
    RemoveDraft();
}

void NewFile::RemoveDraft() const {
    std::error_code ignored;
    for (const char* companion : {"", "-wal", "-shm", "-journal"}) {
        fs::path file = draft_;
        file += companion;
        fs::remove(file, ignored);
    }
}

void NewFile::Publish() {
    RefuseTaken(file_);
    std::error_code error;
    // A log that could not be written back when the draft was closed holds a part of it.
    fs::path log = draft_;
    if (fs::exists(log += "-wal", error)) {
        throw platform::Error(
            fmt::format("{} can't be made: it could not be written to the disk", file_.string()));
    }
    fs::rename(draft_, file_, error);
    if (error) {
        throw platform::Error(fmt::format("{} can't be made: {}", file_.string(), error.message()));
    }
}

NewFolder::NewFolder(const fs::path& folder) {
    std::vector<fs::path> missing;
    std::error_code error;
    fs::path path = fs::absolute(folder, error).lexically_normal();
    if (!path.has_filename()) path = path.parent_path();
    for (; !fs::exists(path, error) && path.has_relative_path(); path = path.parent_path()) {
        missing.insert(missing.begin(), path); // the outermost first
    }
    for (const fs::path& next : missing) {
        if (!fs::create_directory(next, error) && error) {
            RemoveMade();
            throw platform::Error(
                fmt::format("{} can't be made: {}", next.string(), error.message()));
        }
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
    if (!made_.empty()) fs::remove_all(made_.front(), ignored);
}

} // namespace store
